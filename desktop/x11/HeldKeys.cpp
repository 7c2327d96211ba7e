#include "desktop/x11/HeldKeys.h"

#include <algorithm>
#include <utility>

namespace quillon::desktop {

namespace {

/// How much later than it is due a repeat may come from a busy server, in milliseconds.
constexpr std::uint32_t repeatSlack = 250;

} // namespace

HeldKeys::Press HeldKeys::pressed(xcb_keycode_t keyCode, xcb_timestamp_t time) {
    const auto [delay, interval] = m_repeatTimes;
    const Key last = std::exchange(m_keys[keyCode], {Seen::down, time, time});
    // Time stamps wrap around after 49 days, and so do their differences.
    const xcb_timestamp_t sinceLast = time - last.time;
    const xcb_timestamp_t sincePress = time - last.pressTime;
    switch (last.seen) {
    case Seen::never:
        return Press::first;
    case Seen::down:
        return sinceLast <= std::max(delay, interval) + repeatSlack ? Press::repeat : Press::first;
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
