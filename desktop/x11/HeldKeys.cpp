#include "desktop/x11/HeldKeys.h"

#include <utility>

namespace quillon::desktop {

namespace {

/// How much later than it is due a repeat may come from a busy server, in milliseconds.
constexpr std::uint32_t repeatSlack = 250;

} // namespace

HeldKeys::Press HeldKeys::pressed(xcb_keycode_t keyCode, xcb_timestamp_t time) {
    const Key last = std::exchange(m_keys[keyCode], {Seen::down, time});
    // Time stamps wrap around after 49 days, and so does their difference.
    const xcb_timestamp_t elapsed = time - last.time;
    const bool repeats = (last.seen == Seen::down && elapsed <= m_repeatDelay + repeatSlack) ||
                         (last.seen == Seen::up && elapsed == 0);
    return repeats ? Press::repeat : Press::first;
}

void HeldKeys::released(xcb_keycode_t keyCode, xcb_timestamp_t time) {
    m_keys[keyCode] = {Seen::up, time};
}

} // namespace quillon::desktop
