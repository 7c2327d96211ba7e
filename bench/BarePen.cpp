// The floor against which the pen is measured: a bare X client that draws one segment for each
// motion event, in a transparent window over the whole screen. It does nothing else.

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

struct FreeMemory {
    void operator()(void* memory) const { std::free(memory); }
};

/// The visual with an alpha channel, or 0 when the screen has none.
xcb_visualid_t translucentVisual(const xcb_screen_t& screen) {
    for (auto depth = xcb_screen_allowed_depths_iterator(&screen); depth.rem > 0;
         xcb_depth_next(&depth)) {
        if (depth.data->depth == 32) {
            return xcb_depth_visuals_iterator(depth.data).data->visual_id;
        }
    }
    return 0;
}

} // namespace

int main() {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const xcb_visualid_t visual = translucentVisual(screen);
    if (visual == 0) {
        std::fprintf(stderr, "bare-pen: the screen has no translucent visual\n");
        return EXIT_FAILURE;
    }
    const xcb_colormap_t colors = xcb_generate_id(connection);
    xcb_create_colormap(connection, XCB_COLORMAP_ALLOC_NONE, colors, screen.root, visual);
    const xcb_window_t window = xcb_generate_id(connection);
    const std::uint32_t windowValues[] = {
        0, 0, 1, XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_1_MOTION, colors};
    xcb_create_window(connection, 32, window, screen.root, 0, 0, screen.width_in_pixels,
                      screen.height_in_pixels, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT |
                          XCB_CW_EVENT_MASK | XCB_CW_COLORMAP,
                      windowValues);
    xcb_map_window(connection, window);
    const xcb_gcontext_t pen = xcb_generate_id(connection);
    const std::uint32_t penValues[] = {0xFFFF0000, 8, XCB_CAP_STYLE_ROUND};
    xcb_create_gc(connection, pen, window, XCB_GC_FOREGROUND | XCB_GC_LINE_WIDTH | XCB_GC_CAP_STYLE,
                  penValues);
    xcb_flush(connection);

    std::int16_t x = 0;
    std::int16_t y = 0;
    while (const std::unique_ptr<xcb_generic_event_t, FreeMemory> event{
        xcb_wait_for_event(connection)}) {
        const auto& button = reinterpret_cast<const xcb_button_press_event_t&>(*event);
        if ((event->response_type & 0x7F) == XCB_MOTION_NOTIFY) {
            const xcb_segment_t segment{x, y, button.event_x, button.event_y};
            xcb_poly_segment(connection, window, pen, 1, &segment);
            xcb_flush(connection);
        }
        x = button.event_x;
        y = button.event_y;
    }
    return EXIT_SUCCESS;
}
