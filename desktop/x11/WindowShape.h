#pragma once

#include "desktop/x11/XcbHeaders.h"

#include <span>

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

/// The same for a part that is made of these rectangles, in device pixels of the window.
void setInputRegion(xcb_connection_t* connection, xcb_window_t window,
                    std::span<const xcb_rectangle_t> rectangles);

/// Gives a window the outline of these rectangles, in device pixels of the window. With none of
/// them nothing of it is to be seen.
void setOutline(xcb_connection_t* connection, xcb_window_t window,
                std::span<const xcb_rectangle_t> rectangles);
/// Makes a window rectangular again.
void clearOutline(xcb_connection_t* connection, xcb_window_t window);

} // namespace quillon::desktop
