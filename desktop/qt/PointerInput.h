#pragma once

#include "desktop/x11/PointerWindow.h"
#include "foundation/Cancellable.h"

#include <QEvent>
#include <QPointF>
#include <QRegion>

#include <memory>

namespace quillon::desktop {

class ContentWidget;

/// Brings the pointer to a content widget by the shortest way: a pointer window lies over it, whose
/// events are read where they are used. A motion with the primary button held goes straight to the
/// content and is on the screen before the next event is read; everything else goes through the
/// toolkit as if it had come from there. Where the server offers no such window, the toolkit's own
/// way remains.
class PointerInput {
public:
    /// `connection` is the one to which the widget belongs.
    PointerInput(ContentWidget& widget, xcb_connection_t* connection)
        : m_widget(widget)
        , m_connection(connection) {}

    /// Takes the pointer in that part of the widget, in its coordinates, and nowhere else.
    void cover(const QRegion& region);

private:
    void open();
    void takeEvents();
    void take(const WindowPointerEvent& event);
    void send(QEvent::Type type, QPointF place, Qt::MouseButton button);

    ContentWidget& m_widget;
    xcb_connection_t* m_connection;
    bool m_isOpen = false;
    std::unique_ptr<PointerWindow> m_window;
    Cancellable m_watch;
};

} // namespace quillon::desktop
