#pragma once

#include "desktop/x11/XcbHandles.h"

namespace quillon::desktop {

/// True for the news that a grab of the keyboard began or ended. It comes in the form of a change
/// of the window with the keyboard and is none: for as long as a shortcut is held down the server
/// takes the keyboard from its window, and then gives it back. A change that does happen in the
/// meantime has another mode.
inline bool tellsOfKeyboardGrab(const xcb_generic_event_t& event) {
    if (eventType(event) != XCB_FOCUS_IN && eventType(event) != XCB_FOCUS_OUT) {
        return false;
    }
    // Both have the same form.
    const auto& focus = eventAs<xcb_focus_in_event_t>(event);
    return focus.mode == XCB_NOTIFY_MODE_GRAB || focus.mode == XCB_NOTIFY_MODE_UNGRAB;
}

} // namespace quillon::desktop
