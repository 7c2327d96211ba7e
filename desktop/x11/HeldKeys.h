#pragma once

#include "desktop/x11/XcbHeaders.h"

#include <array>
#include <cstdint>

namespace quillon::desktop {

/// Tells the press of a key from the repeats of a held one, whatever modifiers come and go
/// meanwhile.
///
/// A connection hears the repeats of a held key in one of two forms:
/// - a press at each repeat and a release at the end;
/// - a release and a press at each repeat, both with the same time stamp.
///
/// Some releases are never heard, as when another window has the keyboard by then. So a press that
/// comes later than any repeat could is a press of its own, though no release came before it.
class HeldKeys {
public:
    enum class Press { first, repeat };

    /// The longest time between a press and its first repeat, or between two repeats, in
    /// milliseconds.
    void setRepeatDelay(std::uint32_t milliseconds) { m_repeatDelay = milliseconds; }

    Press pressed(xcb_keycode_t keyCode, xcb_timestamp_t time);
    void released(xcb_keycode_t keyCode, xcb_timestamp_t time);

private:
    enum class Seen { never, down, up };
    struct Key {
        Seen seen = Seen::never;
        xcb_timestamp_t time = 0;
    };

    std::uint32_t m_repeatDelay = 0;
    std::array<Key, 256> m_keys;
};

} // namespace quillon::desktop
