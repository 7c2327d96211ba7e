#include "desktop/qt/PointerInput.h"

#include "desktop/qt/ContentWidget.h"
#include "desktop/qt/QtConversions.h"
#include "desktop/qt/QtFileWatch.h"
#include "desktop/x11/XcbHandles.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWindow>

#include <utility>
#include <vector>

namespace quillon::desktop {

namespace {

/// The turns of a wheel are buttons too, and mean nothing here.
Qt::MouseButton buttonNumbered(std::uint32_t number) {
    switch (number) {
    case 1:
        return Qt::LeftButton;
    case 2:
        return Qt::MiddleButton;
    case 3:
        return Qt::RightButton;
    default:
        return Qt::NoButton;
    }
}

} // namespace

void PointerInput::open() {
    // The widget's window must stand on the server before another connection speaks of it; an
    // answer on its own connection says that it does.
    const XcbOwned<xcb_get_input_focus_reply_t> answer(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    m_window = PointerWindow::over(static_cast<xcb_window_t>(m_widget.winId()),
                                   qgetenv("DISPLAY").toStdString());
    if (m_window) {
        m_watch = qtFileWatch()(m_window->fileDescriptor(), [this] { takeEvents(); });
    }
}

void PointerInput::cover(const QRegion& region) {
    if (!std::exchange(m_isOpen, true)) {
        open();
    }
    if (!m_window) {
        return;
    }
    std::vector<xcb_rectangle_t> rectangles;
    for (const QRect& rect : region) {
        rectangles.push_back(
            toXRectangle(devicePixels(fromQRectF(rect), m_widget.devicePixelRatio())));
    }
    m_window->cover(rectangles);
}

void PointerInput::takeEvents() {
    m_window->dispatch([this](const WindowPointerEvent& event) { take(event); });
    m_widget.updateNow();
    if (!m_window->isAlive()) {
        m_watch = {};
    }
}

void PointerInput::take(const WindowPointerEvent& event) {
    const QPointF place = QPointF(event.x, event.y) / m_widget.devicePixelRatio();
    const Qt::MouseButton button = buttonNumbered(event.button);
    switch (event.kind) {
    case WindowPointerEvent::Kind::motion:
        if (event.isPrimaryHeld) {
            m_widget.dragTo(place);
        }
        break;
    case WindowPointerEvent::Kind::enter:
        // The toolkit learns by this that the pointer has left the controls.
        send(QEvent::MouseMove, place, Qt::NoButton);
        break;
    case WindowPointerEvent::Kind::press:
        if (button != Qt::NoButton) {
            send(QEvent::MouseButtonPress, place, button);
        }
        break;
    case WindowPointerEvent::Kind::release:
        if (button != Qt::NoButton) {
            send(QEvent::MouseButtonRelease, place, button);
        }
        break;
    }
}

void PointerInput::send(QEvent::Type type, QPointF place, Qt::MouseButton button) {
    const Qt::MouseButtons held =
        type == QEvent::MouseButtonPress ? Qt::MouseButtons(button) : Qt::NoButton;
    QWindow* window = m_widget.windowHandle();
    QMouseEvent event(type, place, window->mapToGlobal(place), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &event);
}

} // namespace quillon::desktop
