#include "desktop/support/ScreenSize.h"

#include <sys/uio.h>
#include <xcb/randr.h>
#include <xcb/xcbext.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

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

/// A part of the screen that counts as a display of its own, shown by `output` if there is one.
/// The library's own function for this request stops the program, so its words are put together
/// here.
void setMonitor(const XConnection& connection, const std::string& name, int x, int width,
                std::optional<xcb_randr_output_t> output) {
    xcb_randr_monitor_info_t info{};
    info.name = connection.atom(name);
    info.primary = output ? 1 : 0;
    info.nOutput = output ? 1 : 0;
    info.x = static_cast<std::int16_t>(x);
    info.width = static_cast<std::uint16_t>(width);
    info.height = connection.screen().height_in_pixels;
    info.width_in_millimeters = info.width / 4U;
    info.height_in_millimeters = info.height / 4U;

    // The library fills in the first word.
    std::vector<std::uint32_t> words{0, connection.root()};
    words.resize(words.size() + sizeof info / sizeof words[0]);
    std::memcpy(words.data() + 2, &info, sizeof info);
    if (output) {
        words.push_back(*output);
    }
    const xcb_protocol_request_t request{1, &xcb_randr_id, XCB_RANDR_SET_MONITOR, 1};
    // The library uses the two places before the first part.
    std::array<iovec, 3> parts{};
    parts[2] = {words.data(), words.size() * sizeof words[0]};
    xcb_send_request(connection.get(), 0, parts.data() + 2, &request);
}

} // namespace

void switchScreenOff(const XConnection& connection) {
    const Resources resources = resourcesOf(connection);
    const xcb_randr_crtc_t crtc = *xcb_randr_get_screen_resources_crtcs(resources.get());
    const auto request =
        xcb_randr_set_crtc_config(connection.get(), crtc, XCB_CURRENT_TIME, XCB_CURRENT_TIME, 0, 0,
                                  XCB_NONE, XCB_RANDR_ROTATION_ROTATE_0, 0, nullptr);
    const XOwned<xcb_randr_set_crtc_config_reply_t> reply(
        xcb_randr_set_crtc_config_reply(connection.get(), request, nullptr));
    if (!reply || reply->status != XCB_RANDR_SET_CONFIG_SUCCESS) {
        throw std::runtime_error("the server keeps its screen on");
    }
}

void splitScreen(const XConnection& connection, int leftWidth, int gap) {
    const Resources resources = resourcesOf(connection);
    const int width = connection.screen().width_in_pixels;
    setMonitor(connection, "left", 0, leftWidth,
               *xcb_randr_get_screen_resources_outputs(resources.get()));
    setMonitor(connection, "right", leftWidth + gap, width - leftWidth - gap, std::nullopt);
    connection.synchronise();
}

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
