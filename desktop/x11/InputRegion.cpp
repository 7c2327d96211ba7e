#include "desktop/x11/InputRegion.h"

#include <xcb/shape.h>

namespace quillon::desktop {

void setInputRegion(xcb_connection_t* connection, xcb_window_t window, InputRegion region) {
    if (region == InputRegion::empty) {
        xcb_shape_rectangles(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT,
                             XCB_CLIP_ORDERING_UNSORTED, window, 0, 0, 0, nullptr);
    } else {
        xcb_shape_mask(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, window, 0, 0,
                       XCB_PIXMAP_NONE);
    }
    xcb_flush(connection);
}

} // namespace quillon::desktop
