#include "desktop/x11/PointerMotion.h"

namespace quillon::desktop {

namespace {

constexpr std::uint32_t kPrimaryBit = 1U << 1U;

/// Cut off as the toolkit does, also to the left of a window.
int wholePixels(xcb_input_fp1616_t value) {
    return value / 0x10000;
}

bool isMotion(const xcb_generic_event_t& event, std::uint8_t inputExtension) {
    const auto& generic = eventAs<xcb_ge_generic_event_t>(event);
    return inputExtension != 0 && eventType(event) == XCB_GE_GENERIC &&
           generic.extension == inputExtension && generic.event_type == XCB_INPUT_MOTION;
}

} // namespace

std::uint8_t inputExtension(xcb_connection_t* connection) {
    const auto* extension =
        connection ? xcb_get_extension_data(connection, &xcb_input_id) : nullptr;
    return extension && extension->present ? extension->major_opcode : 0;
}

std::optional<PointerMotion> pointerMotion(const xcb_generic_event_t& event,
                                           std::uint8_t inputExtension) {
    if (!isMotion(event, inputExtension)) {
        return std::nullopt;
    }
    const auto& motion = eventAs<xcb_input_motion_event_t>(event);
    return PointerMotion{
        .window = motion.event,
        .x = wholePixels(motion.event_x),
        .y = wholePixels(motion.event_y),
        .isPrimaryHeld = motion.buttons_len > 0 &&
                         (*xcb_input_button_press_button_mask(&motion) & kPrimaryBit) != 0,
        .isOfDeviceAlone = motion.deviceid == motion.sourceid,
    };
}

} // namespace quillon::desktop
