#include "desktop/qt/ActiveWindow.h"

#include "desktop/x11/XcbHandles.h"

namespace quillon::desktop {

namespace {

xcb_window_t windowNamedActive(xcb_connection_t* connection, xcb_window_t root) {
    const xcb_atom_t atom = atomNamed(connection, "_NET_ACTIVE_WINDOW");
    const XcbOwned<xcb_get_property_reply_t> property(xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, root, atom, XCB_ATOM_WINDOW, 0, 1), nullptr));
    if (!property || property->format != 32 || property->value_len < 1) {
        return noWindow;
    }
    return *static_cast<const xcb_window_t*>(xcb_get_property_value(property.get()));
}

xcb_window_t windowWithFocus(xcb_connection_t* connection, xcb_window_t root) {
    const XcbOwned<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    const bool isWindow = focus && focus->focus != XCB_INPUT_FOCUS_NONE &&
                          focus->focus != XCB_INPUT_FOCUS_POINTER_ROOT && focus->focus != root;
    return isWindow ? focus->focus : noWindow;
}

} // namespace

std::optional<QRect> activeWindowFrame(xcb_connection_t* connection) {
    const xcb_window_t root = rootWindow(connection);
    xcb_window_t window = windowNamedActive(connection, root);
    if (window == noWindow) {
        window = windowWithFocus(connection, root);
    }
    if (window == noWindow) {
        return std::nullopt;
    }
    // The window may go at any time; then there is simply no answer.
    const auto geometryCookie = xcb_get_geometry(connection, window);
    const auto originCookie = xcb_translate_coordinates(connection, window, root, 0, 0);
    const XcbOwned<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection, geometryCookie, nullptr));
    const XcbOwned<xcb_translate_coordinates_reply_t> origin(
        xcb_translate_coordinates_reply(connection, originCookie, nullptr));
    if (!geometry || !origin) {
        return std::nullopt;
    }
    return QRect(origin->dst_x, origin->dst_y, geometry->width, geometry->height);
}

} // namespace quillon::desktop
