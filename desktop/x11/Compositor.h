#pragma once

#include "desktop/x11/XcbHandles.h"

namespace quillon::desktop {

/// Whether a compositor is at work on the first X screen. Without one the server shows every window
/// as opaque, whatever its alpha channel says.
inline bool isCompositorRunning(xcb_connection_t* connection) {
    const auto cookie = xcb_get_selection_owner(connection, atomNamed(connection, "_NET_WM_CM_S0"));
    const XcbOwned<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection, cookie, nullptr));
    return reply && reply->owner != noWindow;
}

} // namespace quillon::desktop
