#pragma once

#include "desktop/x11/XcbHeaders.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace quillon::desktop {

/// One key of the keyboard, by its place and not by what is printed on it.
struct VirtualKey {
    /// The virtual key code: the number of the place on the ANSI layout.
    std::uint32_t code;
    /// What the keyboard extension calls the place, the usual name first. At most four letters
    /// each; the last are empty when there are fewer.
    std::array<std::string_view, 3> names;
    /// The X key code of the place in the evdev numbering.
    xcb_keycode_t evdevKeyCode;
};

/// The whole keyboard but for the modifier keys. No code and no name occurs twice.
std::span<const VirtualKey> virtualKeys();

} // namespace quillon::desktop
