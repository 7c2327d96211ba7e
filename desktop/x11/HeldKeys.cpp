#include "desktop/x11/HeldKeys.h"

#include <algorithm>

namespace quillon::desktop {

namespace {

/// How much later than it is due a repeat may come from a busy server, in milliseconds.
constexpr std::uint32_t repeatSlack = 250;
/// How much sooner, for clocks that count whole milliseconds.
constexpr std::uint32_t repeatHaste = 3;

} // namespace

HeldKeys::Press HeldKeys::pressed(xcb_keycode_t keyCode, xcb_timestamp_t time, Release release) {
    Key& key = m_keys[keyCode];
    key = {Seen::down, time, time, release, pressAfter(key, time)};
    return key.press;
}

HeldKeys::Press HeldKeys::pressAfter(const Key& last, xcb_timestamp_t time) const {
    const auto [delay, interval] = m_repeatTimes;
    // Time stamps wrap around after 49 days, and so do their differences.
    const xcb_timestamp_t sinceLast = time - last.time;
    const xcb_timestamp_t sincePress = time - last.pressTime;
    switch (last.seen) {
    case Seen::never:
        return Press::first;
    case Seen::down: {
        const std::uint32_t due = last.press == Press::first ? delay : interval;
        const bool isTooSoon =
            last.release == Release::perhapsMissed && sinceLast + repeatHaste < due;
        const bool isTooLate = sinceLast > std::max(delay, interval) + repeatSlack;
        return isTooSoon || isTooLate ? Press::first : Press::repeat;
    }
    case Seen::up:
        return sinceLast == 0 && sincePress >= std::min(delay, interval) ? Press::repeat
                                                                         : Press::first;
    }
    return Press::first;
}

void HeldKeys::released(xcb_keycode_t keyCode, xcb_timestamp_t time) {
    m_keys[keyCode].seen = Seen::up;
    m_keys[keyCode].time = time;
}

} // namespace quillon::desktop
