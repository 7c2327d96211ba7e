#include "desktop/x11/PointerSelection.h"

#include "desktop/x11/PointerMotion.h"
#include "desktop/x11/XcbHandles.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

namespace quillon::desktop {

namespace {

using EventBits = std::vector<std::uint32_t>;

EventBits selectedOfAllDevices(xcb_connection_t* connection, xcb_window_t window) {
    const XcbOwned<xcb_input_xi_get_selected_events_reply_t> reply(
        xcb_input_xi_get_selected_events_reply(
            connection, xcb_input_xi_get_selected_events(connection, window), nullptr));
    if (!reply) {
        return {};
    }
    for (auto mask = xcb_input_xi_get_selected_events_masks_iterator(reply.get()); mask.rem > 0;
         xcb_input_event_mask_next(&mask)) {
        if (mask.data->deviceid == XCB_INPUT_DEVICE_ALL) {
            const std::span bits(xcb_input_event_mask_mask(mask.data), mask.data->mask_len);
            return {bits.begin(), bits.end()};
        }
    }
    return {};
}

void select(xcb_connection_t* connection, xcb_window_t window, xcb_input_device_id_t devices,
            const EventBits& bits) {
    static_assert(sizeof(xcb_input_event_mask_t) == sizeof(std::uint32_t));
    // The head of the list is as long as one unit of the bits behind it.
    std::vector<std::uint32_t> request(1 + bits.size());
    const xcb_input_event_mask_t head{devices, static_cast<std::uint16_t>(bits.size())};
    std::memcpy(request.data(), &head, sizeof head);
    std::copy(bits.begin(), bits.end(), request.begin() + 1);
    xcb_input_xi_select_events(connection, window, 1,
                               reinterpret_cast<const xcb_input_event_mask_t*>(request.data()));
}

} // namespace

void leaveOutSingleDevices(xcb_connection_t* connection, xcb_window_t window) {
    if (inputExtension(connection) == 0) {
        return;
    }
    const EventBits bits = selectedOfAllDevices(connection, window);
    if (bits.empty()) {
        return;
    }
    select(connection, window, XCB_INPUT_DEVICE_ALL_MASTER, bits);
    select(connection, window, XCB_INPUT_DEVICE_ALL, EventBits(bits.size()));
    xcb_flush(connection);
}

} // namespace quillon::desktop
