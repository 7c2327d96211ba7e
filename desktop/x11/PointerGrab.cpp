#include "desktop/x11/PointerGrab.h"

#include "desktop/x11/XcbHandles.h"

#include <xcb/xinput.h>

#include <cstdint>

namespace quillon::desktop {

namespace {

constexpr std::uint32_t kEvents =
    XCB_INPUT_XI_EVENT_MASK_BUTTON_PRESS | XCB_INPUT_XI_EVENT_MASK_BUTTON_RELEASE |
    XCB_INPUT_XI_EVENT_MASK_MOTION | XCB_INPUT_XI_EVENT_MASK_ENTER | XCB_INPUT_XI_EVENT_MASK_LEAVE |
    XCB_INPUT_XI_EVENT_MASK_TOUCH_BEGIN | XCB_INPUT_XI_EVENT_MASK_TOUCH_UPDATE |
    XCB_INPUT_XI_EVENT_MASK_TOUCH_END;

/// The pointer of clients that chose none: the one that every server has.
xcb_input_device_id_t clientPointer(xcb_connection_t* connection) {
    constexpr xcb_input_device_id_t virtualCorePointer = 2;
    const XcbOwned<xcb_input_xi_get_client_pointer_reply_t> reply(
        xcb_input_xi_get_client_pointer_reply(
            connection, xcb_input_xi_get_client_pointer(connection, noWindow), nullptr));
    return reply && reply->set != 0 ? reply->deviceid : virtualCorePointer;
}

} // namespace

bool grabPointerButOverOwnWindows(xcb_connection_t* connection, xcb_window_t window) {
    const auto grab = xcb_input_xi_grab_device(
        connection, window, XCB_CURRENT_TIME, XCB_CURSOR_NONE, clientPointer(connection),
        XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_OWNER_OWNER, 1,
        &kEvents);
    const XcbOwned<xcb_input_xi_grab_device_reply_t> reply(
        xcb_input_xi_grab_device_reply(connection, grab, nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

} // namespace quillon::desktop
