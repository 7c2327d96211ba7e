#pragma once

#include "desktop/x11/XcbHeaders.h"
#include "foundation/Subject.h"

#include <vector>

namespace quillon::desktop {

/// The panels of the desktop, such as the one with the tray, as its window manager lists them.
class Panels {
public:
    /// The connection must outlive this.
    explicit Panels(xcb_connection_t* connection);
    Panels(const Panels&) = delete;
    Panels& operator=(const Panels&) = delete;

    /// Asks the server which of them can be seen, and for their frames in device pixels of the root
    /// window. One that a window covers as a whole, as a film that fills the screen does, is left
    /// out.
    std::vector<xcb_rectangle_t> inSight() const;

    /// Sent after windows have come, gone, or changed their order.
    Subject<> changed;

    /// To be given every event of a connection that hears of changes to the root window's
    /// properties, as Qt's does.
    void handleEvent(const xcb_generic_event_t& event);

private:
    xcb_connection_t* m_connection;
    xcb_window_t m_root;
    xcb_atom_t m_order;
    xcb_atom_t m_type;
    xcb_atom_t m_panelType;
};

} // namespace quillon::desktop
