#pragma once

#include <QRect>

#include <optional>

#include <xcb/xcb.h>

namespace quillon::desktop {

/// Where the window with the keyboard stands, in device pixels from the top left of the X screen;
/// nothing when no window has it.
///
/// The window is the one that the window manager names as active, else the one with the X input
/// focus.
std::optional<QRect> activeWindowFrame(xcb_connection_t* connection);

} // namespace quillon::desktop
