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
/// comes later than any repeat could is a press of its own, though no release came before it. And a
/// program may strike a key many times within a millisecond, so one that comes sooner than any
/// repeat could is a press of its own too.
class HeldKeys {
public:
    enum class Press { first, repeat };

    /// When the keyboard repeats a held key, in milliseconds.
    struct RepeatTimes {
        /// From a press to its first repeat.
        std::uint32_t delay = 660;
        /// From one repeat to the next.
        std::uint32_t interval = 40;

        friend bool operator==(const RepeatTimes&, const RepeatTimes&) = default;
    };

    void setRepeatTimes(const RepeatTimes& times) { m_repeatTimes = times; }

    Press pressed(xcb_keycode_t keyCode, xcb_timestamp_t time);
    void released(xcb_keycode_t keyCode, xcb_timestamp_t time);

private:
    enum class Seen { never, down, up };
    struct Key {
        Seen seen = Seen::never;
        xcb_timestamp_t time = 0;
        xcb_timestamp_t pressTime = 0;
    };

    RepeatTimes m_repeatTimes;
    std::array<Key, 256> m_keys;
};

} // namespace quillon::desktop
