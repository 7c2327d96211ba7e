#include "desktop/x11/BlurBehind.h"

#include "desktop/x11/XcbHandles.h"

#include <array>
#include <cstdint>

namespace quillon::desktop {

void setBlurBehind(xcb_connection_t* connection, xcb_window_t window,
                   const std::optional<xcb_rectangle_t>& part) {
    static const xcb_atom_t region = atomNamed(connection, "_KDE_NET_WM_BLUR_BEHIND_REGION");
    if (!part) {
        xcb_delete_property(connection, window, region);
        return;
    }
    const std::array<std::uint32_t, 4> values{static_cast<std::uint32_t>(part->x),
                                              static_cast<std::uint32_t>(part->y), part->width,
                                              part->height};
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, region, XCB_ATOM_CARDINAL, 32,
                        values.size(), values.data());
}

} // namespace quillon::desktop
