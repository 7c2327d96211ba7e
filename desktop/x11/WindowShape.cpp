#include "desktop/x11/WindowShape.h"

#include <xcb/shape.h>

#include <cstdint>

namespace quillon::desktop {

void setInputRegion(xcb_connection_t* connection, xcb_window_t window, InputRegion region) {
    if (region == InputRegion::empty) {
        setInputRegion(connection, window, std::span<const xcb_rectangle_t>());
    } else {
        xcb_shape_mask(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, window, 0, 0,
                       XCB_PIXMAP_NONE);
        xcb_flush(connection);
    }
}

void setInputRegion(xcb_connection_t* connection, xcb_window_t window,
                    std::span<const xcb_rectangle_t> rectangles) {
    xcb_shape_rectangles(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT,
                         XCB_CLIP_ORDERING_UNSORTED, window, 0, 0,
                         static_cast<std::uint32_t>(rectangles.size()), rectangles.data());
    xcb_flush(connection);
}

void setOutline(xcb_connection_t* connection, xcb_window_t window,
                std::span<const xcb_rectangle_t> rectangles) {
    xcb_shape_rectangles(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING,
                         XCB_CLIP_ORDERING_UNSORTED, window, 0, 0,
                         static_cast<std::uint32_t>(rectangles.size()), rectangles.data());
    xcb_flush(connection);
}

void clearOutline(xcb_connection_t* connection, xcb_window_t window) {
    xcb_shape_mask(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, window, 0, 0,
                   XCB_PIXMAP_NONE);
    xcb_flush(connection);
}

} // namespace quillon::desktop
