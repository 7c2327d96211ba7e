// The least that following the pointer can be: for each burst of raw motions one question where the
// pointer is, and then either one small window is moved there, or the circle of a dimmed screen is
// copied there within the server. It does the same when the window has lost its picture. What it
// needs is the floor for any other.
//
//     bare-follower halo|spotlight

#include "desktop/support/XConnection.h"

#include <xcb/shape.h>
#include <xcb/xinput.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

using quillon::test::XConnection;
using quillon::test::XOwned;

namespace {

constexpr std::uint16_t kHaloSide = 40;
constexpr std::uint32_t kHaloColor = 0xFF32ADE6;
constexpr std::int16_t kRadius = 150;
constexpr std::uint16_t kSquareSide = 2 * kRadius;
constexpr std::uint32_t kDark = 0xB3000000;
constexpr std::uint32_t kClear = 0;

struct Place {
    std::int16_t x = 0;
    std::int16_t y = 0;
};

xcb_visualid_t translucentVisual(const xcb_screen_t& screen) {
    for (auto depth = xcb_screen_allowed_depths_iterator(&screen); depth.rem != 0;
         xcb_depth_next(&depth)) {
        if (depth.data->depth == 32 && depth.data->visuals_len > 0) {
            return xcb_depth_visuals(depth.data)->visual_id;
        }
    }
    throw std::runtime_error("the display has no translucent visual");
}

/// A translucent window that lets the pointer through.
xcb_window_t makeWindow(const XConnection& connection, std::uint16_t width, std::uint16_t height,
                        std::uint32_t color) {
    const xcb_screen_t& screen = connection.screen();
    const xcb_visualid_t visual = translucentVisual(screen);
    const xcb_colormap_t colors = xcb_generate_id(connection.get());
    xcb_create_colormap(connection.get(), XCB_COLORMAP_ALLOC_NONE, colors, screen.root, visual);
    const xcb_window_t window = xcb_generate_id(connection.get());
    // What was drawn may be lost when the compositor takes hold of the window.
    const std::uint32_t values[] = {color, 0, 1, XCB_EVENT_MASK_EXPOSURE, colors};
    xcb_create_window(connection.get(), 32, window, screen.root, 0, 0, width, height, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT |
                          XCB_CW_EVENT_MASK | XCB_CW_COLORMAP,
                      values);
    xcb_shape_rectangles(connection.get(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT,
                         XCB_CLIP_ORDERING_UNSORTED, window, 0, 0, 0, nullptr);
    xcb_map_window(connection.get(), window);
    return window;
}

xcb_gcontext_t makeBrush(const XConnection& connection, xcb_drawable_t drawable,
                         std::uint32_t color) {
    const xcb_gcontext_t brush = xcb_generate_id(connection.get());
    const std::uint32_t values[] = {color, 0};
    xcb_create_gc(connection.get(), brush, drawable, XCB_GC_FOREGROUND | XCB_GC_GRAPHICS_EXPOSURES,
                  values);
    return brush;
}

class Follower {
public:
    virtual ~Follower() = default;
    virtual void moveTo(Place place) = 0;
};

class Halo : public Follower {
public:
    explicit Halo(const XConnection& connection)
        : m_connection(connection)
        , m_window(makeWindow(connection, kHaloSide, kHaloSide, kHaloColor)) {}

    void moveTo(Place place) override {
        const std::uint32_t values[] = {static_cast<std::uint32_t>(place.x - kHaloSide / 2),
                                        static_cast<std::uint32_t>(place.y - kHaloSide / 2),
                                        XCB_STACK_MODE_ABOVE};
        xcb_configure_window(
            m_connection.get(), m_window,
            XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_STACK_MODE, values);
    }

private:
    const XConnection& m_connection;
    xcb_window_t m_window;
};

class Spotlight : public Follower {
public:
    explicit Spotlight(const XConnection& connection)
        : m_connection(connection)
        , m_window(makeWindow(connection, connection.screen().width_in_pixels,
                              connection.screen().height_in_pixels, kDark))
        , m_square(xcb_generate_id(connection.get()))
        , m_dark(makeBrush(connection, m_window, kDark)) {
        const xcb_rectangle_t square{0, 0, kSquareSide, kSquareSide};
        const xcb_arc_t circle{0, 0, kSquareSide, kSquareSide, 0, 360 * 64};
        xcb_create_pixmap(connection.get(), 32, m_square, m_window, kSquareSide, kSquareSide);
        xcb_poly_fill_rectangle(connection.get(), m_square, m_dark, 1, &square);
        xcb_poly_fill_arc(connection.get(), m_square, makeBrush(connection, m_square, kClear), 1,
                          &circle);
    }

    void moveTo(Place place) override {
        const Place corner{static_cast<std::int16_t>(place.x - kRadius),
                           static_cast<std::int16_t>(place.y - kRadius)};
        const xcb_rectangle_t old{m_corner.x, m_corner.y, kSquareSide, kSquareSide};
        xcb_poly_fill_rectangle(m_connection.get(), m_window, m_dark, 1, &old);
        xcb_copy_area(m_connection.get(), m_square, m_window, m_dark, 0, 0, corner.x, corner.y,
                      kSquareSide, kSquareSide);
        m_corner = corner;
    }

private:
    const XConnection& m_connection;
    xcb_window_t m_window;
    xcb_pixmap_t m_square;
    xcb_gcontext_t m_dark;
    Place m_corner;
};

void selectRawMotions(const XConnection& connection) {
    struct {
        xcb_input_event_mask_t head{XCB_INPUT_DEVICE_ALL_MASTER, 1};
        std::uint32_t events = XCB_INPUT_XI_EVENT_MASK_RAW_MOTION;
    } const mask;
    const XOwned<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
        connection.get(), xcb_input_xi_query_version(connection.get(), 2, 2), nullptr));
    xcb_input_xi_select_events(connection.get(), connection.root(), 1, &mask.head);
}

/// Ends with the display.
void run(const XConnection& connection, Follower& follower) {
    selectRawMotions(connection);
    xcb_flush(connection.get());
    while (const XOwned<xcb_generic_event_t> first{xcb_wait_for_event(connection.get())}) {
        while (const XOwned<xcb_generic_event_t> next{xcb_poll_for_event(connection.get())}) {
        }
        const XOwned<xcb_query_pointer_reply_t> pointer(xcb_query_pointer_reply(
            connection.get(), xcb_query_pointer(connection.get(), connection.root()), nullptr));
        if (pointer) {
            follower.moveTo({pointer->root_x, pointer->root_y});
            xcb_flush(connection.get());
        }
    }
}

} // namespace

int main(int count, char** arguments) {
    try {
        const std::string wanted = count > 1 ? arguments[1] : "";
        const XConnection connection("");
        if (wanted == "spotlight") {
            Spotlight spotlight(connection);
            run(connection, spotlight);
        } else {
            Halo halo(connection);
            run(connection, halo);
        }
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "bare-follower: " << error.what() << '\n';
        return 1;
    }
}
