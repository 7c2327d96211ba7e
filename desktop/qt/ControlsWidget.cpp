#include "desktop/qt/ControlsWidget.h"

#include "desktop/qt/toolbar/PaletteWidget.h"
#include "foundation/FatalError.h"
#include "toolbar/FloatingToolbarView.h"

#include <QCoreApplication>
#include <QMouseEvent>

#include <utility>

namespace quillon::desktop {

namespace {

const QEvent::Type kBringUpToDate = static_cast<QEvent::Type>(QEvent::registerEventType());

} // namespace

std::unique_ptr<ControlsWidget> ControlsWidget::make(const std::shared_ptr<ControlsView>& view,
                                                     QWidget& parent) {
    if (auto toolbar = std::dynamic_pointer_cast<FloatingToolbarView>(view)) {
        return std::make_unique<PaletteWidget>(toolbar, parent);
    }
    fatalError("there are no controls for this kind of view");
}

ControlsWidget::ControlsWidget(const std::shared_ptr<ControlsView>& view, QWidget& parent)
    : QWidget(&parent)
    , m_view(view)
    , m_subscription(view->objectWillChange.sink([this] { scheduleUpdate(); })) {}

void ControlsWidget::place(QPointF center) {
    const QPoint corner = (center - QPointF(width(), height()) / 2).toPoint();
    if (corner != pos()) {
        move(corner);
    }
}

void ControlsWidget::setComposited(bool composited) {
    m_isComposited = composited;
    update();
}

void ControlsWidget::scheduleUpdate() {
    if (!std::exchange(m_isUpdatePending, true)) {
        QCoreApplication::postEvent(this, new QEvent(kBringUpToDate));
    }
}

bool ControlsWidget::event(QEvent* event) {
    if (event->type() == kBringUpToDate) {
        m_isUpdatePending = false;
        bringUpToDate();
        return true;
    }
    return QWidget::event(event);
}

void ControlsWidget::tell(const std::function<void(QPointF)>& listener, const QMouseEvent& event) {
    if (listener) {
        listener(mapToParent(event.position()));
    }
}

void ControlsWidget::mousePressEvent(QMouseEvent* event) {
    if (!body().contains(event->position())) {
        event->ignore();
    } else if (event->button() == Qt::LeftButton) {
        m_isDragging = true;
        tell(bodyDrag.pressed, *event);
    }
}

void ControlsWidget::mouseMoveEvent(QMouseEvent* event) {
    if (m_isDragging) {
        tell(bodyDrag.moved, *event);
    } else {
        event->ignore();
    }
}

void ControlsWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && std::exchange(m_isDragging, false)) {
        tell(bodyDrag.released, *event);
    } else {
        event->ignore();
    }
}

} // namespace quillon::desktop
