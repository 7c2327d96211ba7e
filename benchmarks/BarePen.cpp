// The least that a pen on the screen can be: a translucent window over everything, and one segment
// drawn for each motion event. What it needs from event to picture is the floor for any other.

#include "desktop/support/XConnection.h"

#include <cstdint>
#include <exception>
#include <iostream>
#include <stdexcept>

using quillon::test::XConnection;
using quillon::test::XOwned;

namespace {

constexpr std::uint32_t kInk = 0xFFFF0000;
constexpr std::uint32_t kLineWidth = 5;
constexpr std::uint8_t kDrawingButton = 1;

xcb_visualid_t translucentVisual(const xcb_screen_t& screen) {
    for (auto depth = xcb_screen_allowed_depths_iterator(&screen); depth.rem != 0;
         xcb_depth_next(&depth)) {
        if (depth.data->depth == 32 && depth.data->visuals_len > 0) {
            return xcb_depth_visuals(depth.data)->visual_id;
        }
    }
    throw std::runtime_error("the display has no translucent visual");
}

xcb_window_t makeWindow(const XConnection& connection) {
    const xcb_screen_t& screen = connection.screen();
    const xcb_visualid_t visual = translucentVisual(screen);
    const xcb_colormap_t colors = xcb_generate_id(connection.get());
    xcb_create_colormap(connection.get(), XCB_COLORMAP_ALLOC_NONE, colors, screen.root, visual);
    const xcb_window_t window = xcb_generate_id(connection.get());
    const std::uint32_t values[] = {
        0, 0, 1, XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_1_MOTION, colors};
    xcb_create_window(connection.get(), 32, window, screen.root, 0, 0, screen.width_in_pixels,
                      screen.height_in_pixels, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT |
                          XCB_CW_EVENT_MASK | XCB_CW_COLORMAP,
                      values);
    xcb_map_window(connection.get(), window);
    return window;
}

xcb_gcontext_t makePen(const XConnection& connection, xcb_window_t window) {
    const xcb_gcontext_t pen = xcb_generate_id(connection.get());
    const std::uint32_t values[] = {kInk, kLineWidth, XCB_CAP_STYLE_ROUND};
    xcb_create_gc(connection.get(), pen, window,
                  XCB_GC_FOREGROUND | XCB_GC_LINE_WIDTH | XCB_GC_CAP_STYLE, values);
    return pen;
}

/// The drawing button draws, any other clears. Ends with the display.
void run(const XConnection& connection) {
    const xcb_window_t window = makeWindow(connection);
    const xcb_gcontext_t pen = makePen(connection, window);
    xcb_flush(connection.get());

    xcb_point_t last{};
    while (const XOwned<xcb_generic_event_t> event{xcb_wait_for_event(connection.get())}) {
        const std::uint8_t type = event->response_type & 0x7F;
        // Both events have one layout.
        const auto& pointer = reinterpret_cast<const xcb_button_press_event_t&>(*event);
        const xcb_point_t place{pointer.event_x, pointer.event_y};
        if (type == XCB_MOTION_NOTIFY) {
            const xcb_point_t segment[] = {last, place};
            xcb_poly_line(connection.get(), XCB_COORD_MODE_ORIGIN, window, pen, 2, segment);
        } else if (type == XCB_BUTTON_PRESS && pointer.detail != kDrawingButton) {
            xcb_clear_area(connection.get(), 0, window, 0, 0, 0, 0);
        }
        last = place;
        xcb_flush(connection.get());
    }
}

} // namespace

int main() {
    try {
        run(XConnection(""));
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "bare-pen: " << error.what() << '\n';
        return 1;
    }
}
