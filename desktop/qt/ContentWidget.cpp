#include "desktop/qt/ContentWidget.h"

#include "desktop/qt/QtConversions.h"
#include "desktop/qt/QtGraphicsContext.h"
#include "desktop/x11/PointerSelection.h"
#include "desktop/x11/XcbHandles.h"
#include "raster/PixelPainting.h"

#include <QBackingStore>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEngine>
#include <QPaintEvent>
#include <QPainter>
#include <QRgba64>
#include <QWindow>
#include <QtMath>

#include <chrono>
#include <utility>

namespace quillon::desktop {

namespace {

const QEvent::Type kUpdateContent = static_cast<QEvent::Type>(QEvent::registerEventType());

/// A motion that comes this long after the last update is no part of a burst.
constexpr std::chrono::milliseconds kQuiet{2};

/// The smallest number of points that is a whole number of device pixels, so that a part painted by
/// itself never shares a pixel with its surroundings. Scales are multiples of a 96th.
int pointsOfWholePixels(CGFloat scale) {
    for (int points = 1; points < 96; ++points) {
        const CGFloat pixels = points * scale;
        if (qAbs(pixels - qRound(pixels)) < 1e-4) {
            return points;
        }
    }
    return 96;
}

/// False of a rectangle that shares pixels with its neighbours, since its edges fall inside of
/// them.
bool isMadeOfPixels(const QRect& rect, CGFloat scale) {
    const auto isWhole = [scale](int points) {
        return qAbs(points * scale - qRound(points * scale)) < 1e-4;
    };
    return isWhole(rect.x()) && isWhole(rect.y()) && isWhole(rect.width()) &&
           isWhole(rect.height());
}

} // namespace

ContentWidget::ContentWidget(xcb_connection_t* connection, std::function<void()> onPress)
    : m_connection(connection)
    , m_directDrag(*this, inputExtension(connection), [this](QPointF place) { dragTo(place); })
    , m_directPainting(
          *this, connection,
          [this](const PixelCanvas& canvas, const QRect& rect) { paintContent(canvas, rect); })
    , m_stamped(connection)
    , m_onPress(std::move(onPress))
    , m_placed(*this, bodyDrag()) {
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_NoSystemBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    // With the focus here, the first tab goes to the first control. A press does not bring it back:
    // a text field must not lose it before the view has heard of the press.
    setFocusPolicy(Qt::TabFocus);
    setFocus();
    m_sinceLastUpdate.start();
}

ContentWidget::~ContentWidget() {
    if (m_content) {
        m_content->onRootViewChange = {};
        m_content->rootView->setUpdateRequest({});
    }
}

void ContentWidget::setContentView(const std::shared_ptr<HostingView>& view) {
    m_content = view;
    m_content->onRootViewChange = [this] { adoptRootView(); };
    adoptRootView();
}

void ContentWidget::adoptRootView() {
    m_content->rootView->setUpdateRequest([this] { requestUpdate(); });
    layoutContent();
}

ControlsWidget::BodyDrag ContentWidget::bodyDrag() {
    return {
        .pressed =
            [this](QPointF place) { m_content->rootView->controlsMouseDown(fromQPointF(place)); },
        .moved =
            [this](QPointF place) {
                m_content->rootView->controlsMouseDragged(fromQPointF(place));
            },
        .released =
            [this](QPointF place) { m_content->rootView->controlsMouseUp(fromQPointF(place)); },
    };
}

bool ContentWidget::event(QEvent* event) {
    if (event->type() == kUpdateContent) {
        updateIfNeeded();
        return true;
    }
    if (event->type() == QEvent::WinIdChange && windowHandle()) {
        windowHandle()->installEventFilter(this);
        leaveOutSingleDevices(m_connection, static_cast<xcb_window_t>(internalWinId()));
    }
    // The scale is known for sure only on the screen where the window comes to stand.
    if (event->type() == QEvent::Show || event->type() == QEvent::ScreenChangeInternal) {
        layoutContent();
    }
    return QWidget::event(event);
}

bool ContentWidget::eventFilter(QObject* watched, QEvent* event) {
    if (watched == windowHandle() && event->type() == QEvent::Expose) {
        if (m_scale != devicePixelRatio()) {
            layoutContent();
        }
        // What the toolkit keeps for this does not hold what went past it.
        update();
    }
    // A press on a control is one in this window as well.
    if (watched == windowHandle() && event->type() == QEvent::MouseButtonPress &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        m_onPress();
    }
    return QWidget::eventFilter(watched, event);
}

bool ContentWidget::nativeEvent(const QByteArray& kind, void* message, qintptr* /*result*/) {
    if (kind != "xcb_generic_event_t") {
        return false;
    }
    const auto& event = *static_cast<const xcb_generic_event_t*>(message);
    return eventType(event) == XCB_CONFIGURE_NOTIFY && isMereMove &&
           isMereMove(eventAs<xcb_configure_notify_event_t>(event));
}

void ContentWidget::setComposited(bool composited) {
    if (composited == isComposited()) {
        return;
    }
    if (composited) {
        m_inkMask.reset();
    } else {
        m_inkMask.emplace();
    }
    m_placed.setComposited(composited);
    if (isVisible()) {
        repaint();
    }
    tellOutline();
}

void ContentWidget::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (onAboutToShow) {
        onAboutToShow();
    }
}

void ContentWidget::paintEvent(QPaintEvent* event) {
    if (!m_content) {
        return;
    }
    QPainter painter(this);
    paintRegion(painter, event->region());
    m_paintedSize = size();
    tellOutline();
}

void ContentWidget::paintRegion(QPainter& painter, const QRegion& region) {
    const CGFloat scale = devicePixelRatio();
    QPaintDevice* const device = painter.paintEngine()->paintDevice();
    const bool isOnStore = backingStore() && device == backingStore()->paintDevice();
    const auto canvas = isOnStore && isComposited() ? canvasOf(*device) : std::nullopt;
    for (const QRect& rect : region) {
        if (canvas && isMadeOfPixels(rect, scale)) {
            paintContent(*canvas, rect);
            continue;
        }
        const QRect pixels = devicePixels(fromQRectF(rect), scale);
        QImage picture = painted(rect);
        if (m_inkMask) {
            m_inkMask->replace(pixels.topLeft(), picture);
            // The server would show what is left of a translucent colour, as if it lay on black.
            picture.convertTo(QImage::Format_RGB32);
        }
        painter.setClipRect(rect);
        painter.setWorldTransform(QTransform::fromScale(1 / scale, 1 / scale));
        painter.drawImage(pixels.topLeft(), picture);
        painter.resetTransform();
    }
}

void ContentWidget::putOnScreen(const QRegion& region) {
    // The widget system would go through all that could lie in the region. With no child there,
    // and the store painted before in its present size, there is nothing but the content.
    QBackingStore* store = backingStore();
    if (!store || m_paintedSize != size() || m_placed.reachInto(region)) {
        repaint(region);
        return;
    }
    if (isComposited() && (putStamped(*store, region) || m_directPainting.put(*store, region))) {
        return;
    }
    store->beginPaint(region);
    QPainter painter(store->paintDevice());
    paintRegion(painter, region);
    painter.end();
    store->endPaint();
    store->flush(region);
}

bool ContentWidget::putStamped(QBackingStore& store, const QRegion& region) {
    const auto picture = m_content->rootView->stampedPicture();
    if (!picture || m_backgroundColor.isValid() || !canvasOf(*store.paintDevice())) {
        return false;
    }
    QRegion pixels;
    for (const QRect& rect : region) {
        pixels += devicePixels(fromQRectF(rect), devicePixelRatio());
    }
    return m_stamped.put(static_cast<xcb_window_t>(internalWinId()), *picture, pixels);
}

void ContentWidget::display() {
    if (m_content && isVisible()) {
        putOnScreen(rect());
    }
}

void ContentWidget::paintContent(const PixelCanvas& canvas, const QRect& rect) {
    const CGFloat scale = devicePixelRatio();
    const QRect pixels = devicePixels(fromQRectF(rect), scale);
    if (m_backgroundColor.isValid()) {
        fillPixels(canvas.part(toPixelRect(pixels)),
                   m_backgroundColor.rgba64().premultiplied().toArgb32(), BlendMode::normal);
    }
    QtGraphicsContext context(canvas, pixels, scale);
    m_content->rootView->paint(context, fromQRectF(rect));
}

QImage ContentWidget::painted(const QRect& rect) {
    const QRect pixels = devicePixels(fromQRectF(rect), devicePixelRatio());
    QImage picture(pixels.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    paintContent(canvasOf(picture, pixels.topLeft()), rect);
    return picture;
}

void ContentWidget::tellOutline() {
    if (m_inkMask && onOutlined) {
        QRegion outline = m_inkMask->region();
        for (const QRect& rect : m_placed.outline()) {
            outline += devicePixels(fromQRectF(rect), devicePixelRatio());
        }
        onOutlined(outline);
    }
}

void ContentWidget::resizeEvent(QResizeEvent* /*event*/) {
    layoutContent();
}

void ContentWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && m_content) {
        m_placed.finishComposing();
        m_content->rootView->mouseDown(fromQPointF(event->position()));
        m_directDrag.delivered(*event);
    }
}

void ContentWidget::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton)) {
        if (!m_directDrag.isMadeUp(*event)) {
            dragTo(event->position());
        }
        m_directDrag.delivered(*event);
    }
}

void ContentWidget::dragTo(QPointF place) {
    if (m_content) {
        m_content->rootView->mouseDragged(fromQPointF(place));
        updateAtOnceIfQuiet();
    }
}

void ContentWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && m_content) {
        m_directDrag.end();
        m_content->rootView->mouseUp(fromQPointF(event->position()));
    }
}

void ContentWidget::keyPressEvent(QKeyEvent* event) {
    if (!m_placed.takeKey(*event)) {
        QWidget::keyPressEvent(event);
    }
}

void ContentWidget::requestUpdate() {
    if (!std::exchange(m_isUpdatePending, true)) {
        QCoreApplication::postEvent(this, new QEvent(kUpdateContent), Qt::LowEventPriority);
    }
}

void ContentWidget::updateIfNeeded() {
    if (std::exchange(m_isUpdatePending, false)) {
        updateContent();
    }
}

void ContentWidget::updateAtOnceIfQuiet() {
    if (m_sinceLastUpdate.hasExpired(kQuiet.count())) {
        updateIfNeeded();
    }
}

void ContentWidget::updateContent() {
    m_sinceLastUpdate.start();
    if (!m_content) {
        return;
    }
    const QRegion region = regionOf(m_content->rootView->takeDamage());
    m_placed.bringUpToDate(*m_content->rootView);
    if (!region.isEmpty() && isVisible()) {
        putOnScreen(region);
    }
    tellOutline();
}

void ContentWidget::layoutContent() {
    m_paintedSize = {};
    followScale();
    if (m_content) {
        const CGSize points{static_cast<CGFloat>(width()), static_cast<CGFloat>(height())};
        m_content->rootView->layout(points, devicePixelRatio());
    }
}

void ContentWidget::followScale() {
    const CGFloat scale = devicePixelRatio();
    if (std::exchange(m_scale, scale) != scale && backingStore()) {
        // The toolkit compares points, and would keep a store of too few pixels.
        backingStore()->resize(size());
        update();
    }
}

QRegion ContentWidget::regionOf(const Damage& damage) const {
    const int step = pointsOfWholePixels(devicePixelRatio());
    const auto low = [step](CGFloat edge) { return qFloor(edge / step) * step; };
    const auto high = [step](CGFloat edge) { return qCeil(edge / step) * step; };
    QRegion region;
    for (const CGRect& rect : damage.rects()) {
        region += QRect(QPoint(low(rect.minX()), low(rect.minY())),
                        QPoint(high(rect.maxX()) - 1, high(rect.maxY()) - 1));
    }
    return region & QWidget::rect();
}

} // namespace quillon::desktop
