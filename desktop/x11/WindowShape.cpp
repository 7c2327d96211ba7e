#include "desktop/x11/WindowShape.h"

#include <xcb/shape.h>

#include <cstdint>

namespace quillon::desktop {

namespace {

void setShape(xcb_connection_t* connection, xcb_window_t window, xcb_shape_kind_t kind,
              std::span<const xcb_rectangle_t> rectangles) {
    xcb_shape_rectangles(connection, XCB_SHAPE_SO_SET, kind, XCB_CLIP_ORDERING_UNSORTED, window, 0,
                         0, static_cast<std::uint32_t>(rectangles.size()), rectangles.data());
    xcb_flush(connection);
}

void clearShape(xcb_connection_t* connection, xcb_window_t window, xcb_shape_kind_t kind) {
    xcb_shape_mask(connection, XCB_SHAPE_SO_SET, kind, window, 0, 0, XCB_PIXMAP_NONE);
    xcb_flush(connection);
}

} // namespace

void setInputRegion(xcb_connection_t* connection, xcb_window_t window, InputRegion region) {
    if (region == InputRegion::empty) {
        setShape(connection, window, XCB_SHAPE_SK_INPUT, {});
    } else {
        clearShape(connection, window, XCB_SHAPE_SK_INPUT);
    }
}

void setInputRegion(xcb_connection_t* connection, xcb_window_t window,
                    std::span<const xcb_rectangle_t> rectangles) {
    setShape(connection, window, XCB_SHAPE_SK_INPUT, rectangles);
}

void setOutline(xcb_connection_t* connection, xcb_window_t window,
                std::span<const xcb_rectangle_t> rectangles) {
    setShape(connection, window, XCB_SHAPE_SK_BOUNDING, rectangles);
}

void clearOutline(xcb_connection_t* connection, xcb_window_t window) {
    clearShape(connection, window, XCB_SHAPE_SK_BOUNDING);
}

} // namespace quillon::desktop
