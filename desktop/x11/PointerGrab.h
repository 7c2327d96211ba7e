#pragma once

#include "desktop/x11/XcbHeaders.h"

namespace quillon::desktop {

/// Holds the pointer for a window of this connection, which must be on the screen: presses and
/// moves go to it wherever they happen, but for those over other windows of the connection, which
/// go there as ever. It takes the place of any other grab of the connection, and to ask again for
/// what one has changes nothing. False while somebody else holds the pointer.
bool grabPointerButOverOwnWindows(xcb_connection_t* connection, xcb_window_t window);

} // namespace quillon::desktop
