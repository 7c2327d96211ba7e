#pragma once

#include "desktop/x11/XcbHeaders.h"

#include <optional>

namespace quillon::desktop {

/// Asks the compositor to blur what lies behind that part of a window, in device pixels of the
/// window; nothing takes the wish back. A compositor that does not blur leaves it alone.
void setBlurBehind(xcb_connection_t* connection, xcb_window_t window,
                   const std::optional<xcb_rectangle_t>& part);

} // namespace quillon::desktop
