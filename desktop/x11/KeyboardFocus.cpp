#include "desktop/x11/KeyboardFocus.h"

#include "desktop/x11/XcbHandles.h"

#include <utility>

namespace quillon::desktop {

void KeyboardFocus::take(xcb_window_t window) {
    const auto present = holder();
    if (present && present->window == window) {
        return;
    }
    m_previous = present;
    xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
    xcb_flush(m_connection);
}

void KeyboardFocus::giveBack(xcb_window_t window) {
    const auto present = holder();
    const auto previous = std::exchange(m_previous, std::nullopt);
    if (!present || present->window != window) {
        return;
    }
    const auto next =
        previous.value_or(Holder{XCB_INPUT_FOCUS_POINTER_ROOT, XCB_INPUT_FOCUS_POINTER_ROOT});
    // The window may have gone in the meantime, which only the answer tells.
    const auto request =
        xcb_set_input_focus_checked(m_connection, next.revertTo, next.window, XCB_CURRENT_TIME);
    if (requestError(m_connection, request)) {
        xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_POINTER_ROOT,
                            XCB_INPUT_FOCUS_POINTER_ROOT, XCB_CURRENT_TIME);
        xcb_flush(m_connection);
    }
}

std::optional<KeyboardFocus::Holder> KeyboardFocus::holder() const {
    const XcbOwned<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    if (!reply) {
        return std::nullopt;
    }
    return Holder{reply->focus, reply->revert_to};
}

} // namespace quillon::desktop
