#include "desktop/qt/OwnPresses.h"

#include <QCoreApplication>
#include <QMouseEvent>

#include <utility>

namespace quillon::desktop {

namespace {

NSEventType typeOf(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return NSEventType::leftMouseDown;
    case Qt::RightButton:
        return NSEventType::rightMouseDown;
    default:
        return NSEventType::otherMouseDown;
    }
}

} // namespace

OwnPresses::OwnPresses(std::function<void(const NSEvent&)> onPress)
    : m_onPress(std::move(onPress)) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool OwnPresses::eventFilter(QObject* receiver, QEvent* event) {
    // A press is offered to its window first, and then to widgets up to one that takes it. For the
    // window the second press of a double click is one like any other.
    if (event->type() == QEvent::MouseButtonPress && receiver->isWindowType()) {
        m_onPress({typeOf(static_cast<QMouseEvent*>(event)->button())});
    }
    return false;
}

} // namespace quillon::desktop
