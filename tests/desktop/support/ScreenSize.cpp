#include "desktop/support/ScreenSize.h"

#include <xcb/randr.h>

#include <algorithm>
#include <stdexcept>
#include <string>

namespace quillon::test {

namespace {

using Resources = XOwned<xcb_randr_get_screen_resources_reply_t>;

Resources resourcesOf(const XConnection& connection) {
    return Resources(xcb_randr_get_screen_resources_reply(
        connection.get(), xcb_randr_get_screen_resources(connection.get(), connection.root()),
        nullptr));
}

/// A mode of this size, the server's own or one made now.
xcb_randr_mode_t modeOf(const XConnection& connection, const Resources& resources,
                        std::uint16_t width, std::uint16_t height) {
    const xcb_randr_mode_info_t* modes = xcb_randr_get_screen_resources_modes(resources.get());
    const xcb_randr_mode_info_t* end = modes + resources->num_modes;
    const auto* known = std::find_if(modes, end, [&](const xcb_randr_mode_info_t& mode) {
        return mode.width == width && mode.height == height;
    });
    if (known != end) {
        return known->id;
    }
    const std::string name = std::to_string(width) + "x" + std::to_string(height);
    xcb_randr_mode_info_t mode{};
    mode.width = mode.hsync_start = mode.hsync_end = mode.htotal = width;
    mode.height = mode.vsync_start = mode.vsync_end = mode.vtotal = height;
    mode.dot_clock = 10'000'000;
    mode.name_len = static_cast<std::uint16_t>(name.size());
    const XOwned<xcb_randr_create_mode_reply_t> reply(
        xcb_randr_create_mode_reply(connection.get(),
                                    xcb_randr_create_mode(connection.get(), connection.root(), mode,
                                                          mode.name_len, name.c_str()),
                                    nullptr));
    if (!reply) {
        throw std::runtime_error("the server makes no mode of " + name);
    }
    const xcb_randr_output_t output = *xcb_randr_get_screen_resources_outputs(resources.get());
    xcb_randr_add_output_mode(connection.get(), output, reply->mode);
    return reply->mode;
}

} // namespace

void changeScreenSize(const XConnection& connection, int width, int height) {
    const auto newWidth = static_cast<std::uint16_t>(width);
    const auto newHeight = static_cast<std::uint16_t>(height);
    const Resources resources = resourcesOf(connection);
    const xcb_randr_mode_t mode = modeOf(connection, resources, newWidth, newHeight);
    const xcb_randr_output_t output = *xcb_randr_get_screen_resources_outputs(resources.get());
    const xcb_randr_crtc_t crtc = *xcb_randr_get_screen_resources_crtcs(resources.get());
    const auto setMode = [&] {
        const auto request =
            xcb_randr_set_crtc_config(connection.get(), crtc, XCB_CURRENT_TIME, XCB_CURRENT_TIME, 0,
                                      0, mode, XCB_RANDR_ROTATION_ROTATE_0, 1, &output);
        const XOwned<xcb_randr_set_crtc_config_reply_t> reply(
            xcb_randr_set_crtc_config_reply(connection.get(), request, nullptr));
        return reply && reply->status == XCB_RANDR_SET_CONFIG_SUCCESS;
    };
    // The screen must hold what is shown of it at every moment: of the two, the smaller comes
    // first.
    const bool shrunk = setMode();
    xcb_randr_set_screen_size(connection.get(), connection.root(), newWidth, newHeight,
                              newWidth / 4U, newHeight / 4U);
    if (!shrunk && !setMode()) {
        throw std::runtime_error("the server keeps the size of its screen");
    }
    connection.synchronise();
}

} // namespace quillon::test
