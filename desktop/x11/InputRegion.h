#pragma once

#include "desktop/x11/XcbHeaders.h"

namespace quillon::desktop {

enum class InputRegion {
    /// Presses and moves fall through to whatever lies below.
    empty,
    /// The whole window takes the pointer.
    window,
};

/// Says which part of a window takes the pointer. The window need not be mapped, and a mapped one
/// stays as it is.
void setInputRegion(xcb_connection_t* connection, xcb_window_t window, InputRegion region);

} // namespace quillon::desktop
