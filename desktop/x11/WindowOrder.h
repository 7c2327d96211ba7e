#pragma once

#include "desktop/x11/XcbHeaders.h"

#include <optional>

namespace quillon::desktop {

/// The child of the root in which `window` stands: itself, or the frame that the window manager put
/// around it. Nothing when the window is gone.
std::optional<xcb_window_t> outermostWindow(xcb_connection_t* connection, xcb_window_t window);

/// Puts a child of the root directly below another.
void stackBelow(xcb_connection_t* connection, xcb_window_t window, xcb_window_t above);

} // namespace quillon::desktop
