#pragma once

#include <xcb/xcb.h>

namespace quillon::desktop {

/// Puts a window outside of the window manager's hands below the titled windows of the program that
/// are on the screen. Nothing happens when there is none.
void keepBelowTitledWindows(xcb_connection_t* connection, xcb_window_t window);

} // namespace quillon::desktop
