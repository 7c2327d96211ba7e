#pragma once

#include "desktop/qt/QtTitledWindow.h"
#include "desktop/qt/QtWindow.h"
#include "desktop/x11/CompositorWatch.h"
#include "platform/Window.h"
#include "platform/WindowBackend.h"

#include <set>
#include <utility>

#include <xcb/xcb.h>

namespace quillon::desktop {

/// Makes the windows of the system, on the toolkit's connection to the X server.
class QtWindows : public Windows {
public:
    /// `application` outlives this. `layOutControls` makes the content of titled windows.
    QtWindows(xcb_connection_t* connection, Application& application, ControlsLayout layOutControls)
        : m_connection(connection)
        , m_application(application)
        , m_layOutControls(std::move(layOutControls))
        , m_compositor(connection)
        , m_panels(connection) {}

    std::unique_ptr<WindowBackend> makeWindow(Window& window) override;

    /// Whether a window has the pointer wherever on the screen that is.
    bool holdPointer() const { return m_pointerHolders > 0; }

    /// Whether nothing but one of the windows is to be seen in a rectangle of the root window, in
    /// device pixels. A window of another program above it is left out of account, and so are
    /// titled windows.
    bool hide(const xcb_rectangle_t& rect) const;

    /// To be given every event of the connection, in order. True when the event was meant for the
    /// windows and should go no further.
    bool handleEvent(const xcb_generic_event_t& event) {
        m_panels.handleEvent(event);
        return m_compositor.handleEvent(event);
    }

private:
    xcb_connection_t* m_connection;
    Application& m_application;
    ControlsLayout m_layOutControls;
    CompositorWatch m_compositor;
    Panels m_panels;
    int m_pointerHolders = 0;
    std::set<const QtWindow*> m_windows;
};

} // namespace quillon::desktop
