#pragma once

#include "desktop/x11/XcbHeaders.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>

namespace quillon::desktop {

/// Which X key code stands for which virtual key code on the keyboard at hand, both ways.
///
/// A virtual key has at most one X key code and the reverse, so what one way yields the other way
/// takes back.
class KeyTable {
public:
    /// X key codes by the names of their places, up to four letters each.
    using Names = std::map<std::string, xcb_keycode_t, std::less<>>;

    /// For a keyboard that tells the names of its keys.
    explicit KeyTable(const Names& names);

    /// For a keyboard of which nothing is known but that its key codes are the kernel's.
    static KeyTable evdev();

    /// The X key code of a virtual key, or nothing when this keyboard has no such key.
    std::optional<xcb_keycode_t> keyCode(std::uint32_t virtualKey) const;
    /// The virtual key code of an X key code, or nothing when it is none of the virtual keys.
    std::optional<std::uint32_t> virtualKey(xcb_keycode_t keyCode) const;

    friend bool operator==(const KeyTable&, const KeyTable&) = default;

private:
    KeyTable() = default;

    void add(std::uint32_t virtualKey, xcb_keycode_t keyCode);

    std::map<std::uint32_t, xcb_keycode_t> m_keyCodes;
    std::map<xcb_keycode_t, std::uint32_t> m_virtualKeys;
};

} // namespace quillon::desktop
