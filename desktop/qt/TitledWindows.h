#pragma once

#include <xcb/xcb.h>

#include <optional>

namespace quillon::desktop {

/// The titled window of the program that is on the screen, in the frame that the window manager
/// gave it; nothing when there is none. The program has one at most, whose dialogs stand above it.
std::optional<xcb_window_t> titledWindowOnScreen(xcb_connection_t* connection);

} // namespace quillon::desktop
