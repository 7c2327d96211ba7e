#include "desktop/x11/WindowOrder.h"

#include "desktop/x11/XcbHandles.h"

#include <cstdint>

namespace quillon::desktop {

std::optional<xcb_window_t> outermostWindow(xcb_connection_t* connection, xcb_window_t window) {
    for (;;) {
        const XcbOwned<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(connection, xcb_query_tree(connection, window), nullptr));
        if (!tree || tree->parent == noWindow) {
            return std::nullopt;
        }
        if (tree->parent == tree->root) {
            return window;
        }
        window = tree->parent;
    }
}

void stackBelow(xcb_connection_t* connection, xcb_window_t window, xcb_window_t above) {
    const std::uint32_t values[] = {above, XCB_STACK_MODE_BELOW};
    const auto cookie = xcb_configure_window_checked(
        connection, window, XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE, values);
    // The other may go in the meantime; there is nothing to stay below of then.
    xcb_discard_reply(connection, cookie.sequence);
    xcb_flush(connection);
}

} // namespace quillon::desktop
