#include "desktop/qt/toolbar/ToolbarButtonWidget.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/PopupWatch.h"
#include "desktop/qt/QtConversions.h"
#include "desktop/qt/SymbolPicture.h"
#include "desktop/qt/TextStyles.h"
#include "desktop/qt/widgets/FocusRing.h"

#include <QCursor>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QTimerEvent>

#include <utility>

namespace quillon::desktop {

namespace {

constexpr int kFrameMilliseconds = 16;
/// From the panel's edge to the menu, in points.
constexpr int kMenuDistance = 6;
/// Between the caption and the sides, where the focus shows.
constexpr qreal kCaptionMargin = 3;

} // namespace

ToolbarButtonWidget::ToolbarButtonWidget(PaletteControl control, QWidget& parent)
    : QAbstractButton(&parent)
    , m_control(std::move(control)) {
    m_clock.start();
    // A click leaves the keyboard with the text that is being typed.
    setFocusPolicy(Qt::TabFocus);
    setFixedSize(sizeHint());
    connect(this, &QAbstractButton::clicked, this, [this] {
        if (m_control.menu) {
            showMenu(OpenedBy::keyboard);
        } else {
            m_control.button.action();
        }
    });
    follow(m_control);
}

ToolbarButtonWidget::~ToolbarButtonWidget() = default;

void ToolbarButtonWidget::follow(PaletteControl control) {
    ToolbarButton button = m_control.button;
    button.follow(std::move(control.button));
    m_control = std::move(control);
    m_control.button = std::move(button);

    setEnabled(!m_control.isDisabled && !m_control.button.isDisabled);
    setAccessibleName(QString::fromStdString(m_control.button.label));
    setCheckable(m_control.button.isSelected);
    setChecked(m_control.button.isSelected);
    if (m_menu && m_control.menu) {
        m_menu->follow(*m_control.menu);
    }
    update();
}

QSize ToolbarButtonWidget::sizeHint() const {
    return QSizeF(ToolbarButton::frame.width, ToolbarButton::frame.height).toSize();
}

void ToolbarButtonWidget::showMenu(OpenedBy by) {
    m_menu = std::make_unique<PaletteMenuWidget>(*m_control.menu, *this);
    connect(m_menu.get(), &QMenu::aboutToHide, this, [this] { menuClosed(); });
    m_menu->popup(menuPlace());
    if (by == OpenedBy::keyboard) {
        m_menu->startWithKeyboard();
    }
}

QPoint ToolbarButtonWidget::menuPlace() const {
    const int distance = qRound(PaletteRow::verticalPadding) + kMenuDistance;
    const int menuHeight = m_menu->sizeHint().height();
    const QPoint below = mapToGlobal(QPoint(0, height() + distance));
    const QPoint above = mapToGlobal(QPoint(0, -distance - menuHeight));
    const QScreen* at = QGuiApplication::screenAt(mapToGlobal(rect().center()));
    const QRect area = (at ? at : screen())->geometry();
    const bool hasRoomBelow = below.y() + menuHeight <= area.y() + area.height();
    return hasRoomBelow || above.y() < area.y() ? below : above;
}

void ToolbarButtonWidget::menuClosed() {
    release();
    if (m_isPointerInside && !rect().contains(mapFromGlobal(QCursor::pos()))) {
        m_isPointerInside = false;
        m_control.onHover(false);
    }
}

// The press.

void ToolbarButtonWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton && m_control.menu) {
        m_control.button.action();
    } else if (event->button() == Qt::LeftButton) {
        press();
        if (m_control.menu) {
            showMenu(OpenedBy::pointer);
        } else {
            QAbstractButton::mousePressEvent(event);
        }
    }
}

void ToolbarButtonWidget::mouseMoveEvent(QMouseEvent* event) {
    if (isDown()) {
        press();
    }
    QAbstractButton::mouseMoveEvent(event);
}

void ToolbarButtonWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        release();
    }
    QAbstractButton::mouseReleaseEvent(event);
}

void ToolbarButtonWidget::press() {
    m_control.button.pressEvents().onPress();
    followPress();
}

void ToolbarButtonWidget::release() {
    m_control.button.pressEvents().onRelease();
    followPress();
}

void ToolbarButtonWidget::followPress() {
    const double scale = m_control.button.scale();
    if (scale != m_scale.target()) {
        m_scale.setTarget(scale, now());
        m_frames.start(kFrameMilliseconds, Qt::PreciseTimer, this);
    }
}

double ToolbarButtonWidget::now() const {
    return static_cast<double>(m_clock.nsecsElapsed()) * 1e-9;
}

void ToolbarButtonWidget::timerEvent(QTimerEvent* event) {
    if (event->timerId() != m_frames.timerId()) {
        QAbstractButton::timerEvent(event);
        return;
    }
    if (m_scale.isAtRest(now())) {
        m_frames.stop();
    }
    update();
}

void ToolbarButtonWidget::enterEvent(QEnterEvent* /*event*/) {
    if (!std::exchange(m_isPointerInside, true)) {
        m_control.onHover(true);
    }
}

void ToolbarButtonWidget::leaveEvent(QEvent* /*event*/) {
    if (m_menu && m_menu->isVisible()) {
        return;
    }
    m_isPointerInside = false;
    m_control.onHover(false);
}

void ToolbarButtonWidget::focusInEvent(QFocusEvent* event) {
    // A menu that closes gives the keyboard back as it was.
    if (event->reason() != Qt::PopupFocusReason) {
        m_showsFocus = event->reason() == Qt::TabFocusReason ||
                       event->reason() == Qt::BacktabFocusReason ||
                       event->reason() == Qt::OtherFocusReason;
    }
    QAbstractButton::focusInEvent(event);
}

void ToolbarButtonWidget::focusOutEvent(QFocusEvent* event) {
    if (!PopupWatch::isPopupOpen()) {
        m_showsFocus = false;
    }
    QAbstractButton::focusOutEvent(event);
}

// The look.

void ToolbarButtonWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const double scale = m_frames.isActive() ? m_scale.valueAt(now()) : m_scale.target();
    const QPointF center = QRectF(rect()).center();
    painter.translate(center);
    painter.scale(scale, scale);
    painter.translate(-center);
    paintFace(painter);
}

void ToolbarButtonWidget::paintFace(QPainter& painter) const {
    const ToolbarButton& button = m_control.button;
    const QRectF frame(rect());
    const qreal radius = ToolbarButton::backgroundCornerRadius;
    painter.setPen(Qt::NoPen);
    painter.setBrush(toQColor(button.background(), palette()));
    painter.drawRoundedRect(frame, radius, radius);
    if (m_showsFocus) {
        FocusRing::paintInside(painter, frame, radius, palette());
    }

    const QColor foreground = toQColor(button.foregroundColor(), palette());
    const QString label = QString::fromStdString(button.label);
    const QFont font = captionFont(label);
    const QFontMetricsF metrics(font);
    const CGSize symbolFrame = ToolbarButton::symbolFrame;
    const qreal height = symbolFrame.height + ToolbarButton::spacing + metrics.height();
    const qreal top = frame.top() + (frame.height() - height) / 2;
    // A glyph leaves a margin in its grid that the same glyph of a font would not have.
    const qreal side = ToolbarButton::symbolFontSize * 1.25;
    const QPointF symbol(frame.center().x() - side / 2, top + (symbolFrame.height - side) / 2);
    painter.drawImage(symbol, symbolPicture(button.icon, side, devicePixelRatio(), foreground));

    const QRectF caption(frame.left(), top + height - metrics.height(), frame.width(),
                         metrics.height());
    painter.setFont(font);
    painter.setPen(foreground);
    painter.drawText(caption, Qt::AlignCenter,
                     metrics.elidedText(label, Qt::ElideRight, caption.width()));
}

QFont ToolbarButtonWidget::captionFont(const QString& caption) const {
    QFont font = systemFont(ToolbarButton::captionFontSize);
    font.setWeight(QFont::Medium);
    return textStyle::fitting(font, caption, QRectF(rect()).width() - 2 * kCaptionMargin);
}

} // namespace quillon::desktop
