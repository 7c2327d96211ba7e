#include "desktop/support/XConnection.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <stdexcept>

namespace quillon::test {

XConnection::XConnection(const std::string& display)
    : m_connection(xcb_connect(display.c_str(), nullptr)) {
    if (xcb_connection_has_error(m_connection) != 0) {
        throw std::runtime_error("no X server answers at " + display);
    }
    m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
}

XConnection::~XConnection() {
    xcb_disconnect(m_connection);
}

xcb_atom_t XConnection::atom(const std::string& name) const {
    const auto cookie =
        xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const XOwned<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

xcb_window_t XConnection::selectionOwner(const std::string& name) const {
    const auto cookie = xcb_get_selection_owner(m_connection, atom(name));
    const XOwned<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(m_connection, cookie, nullptr));
    return reply ? reply->owner : static_cast<xcb_window_t>(XCB_NONE);
}

xcb_window_t XConnection::focusedWindow() const {
    const XOwned<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    return reply ? reply->focus : static_cast<xcb_window_t>(XCB_NONE);
}

std::vector<std::uint32_t> XConnection::property(xcb_window_t window,
                                                 const std::string& name) const {
    const auto cookie = xcb_get_property(m_connection, 0, window, atom(name), XCB_ATOM_ANY, 0, 64);
    const XOwned<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(m_connection, cookie, nullptr));
    if (!reply || reply->format != 32) {
        return {};
    }
    const auto* values = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {values, values + reply->value_len};
}

std::string XConnection::text(xcb_window_t window, const std::string& name) const {
    const auto cookie = xcb_get_property(m_connection, 0, window, atom(name), XCB_ATOM_ANY, 0, 64);
    const XOwned<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(m_connection, cookie, nullptr));
    if (!reply || reply->format != 8) {
        return {};
    }
    const auto* bytes = static_cast<const char*>(xcb_get_property_value(reply.get()));
    return {bytes, reply->value_len};
}

std::vector<xcb_window_t> XConnection::windowsTitled(const std::string& title) const {
    std::vector<xcb_window_t> windows = property(root(), "_NET_CLIENT_LIST");
    std::erase_if(windows, [&](auto window) { return text(window, "_NET_WM_NAME") != title; });
    return windows;
}

std::vector<xcb_window_t> XConnection::shownWindows() const {
    const XOwned<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, root()), nullptr));
    const xcb_window_t* children = xcb_query_tree_children(tree.get());
    std::vector<xcb_window_t> windows(children,
                                      children + xcb_query_tree_children_length(tree.get()));
    std::erase_if(windows, [this](auto window) {
        const XOwned<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
            m_connection, xcb_get_window_attributes(m_connection, window), nullptr));
        return !attributes || attributes->map_state != XCB_MAP_STATE_VIEWABLE;
    });
    return windows;
}

xcb_rectangle_t XConnection::place(xcb_window_t window) const {
    const XOwned<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr));
    const XOwned<xcb_translate_coordinates_reply_t> corner(xcb_translate_coordinates_reply(
        m_connection, xcb_translate_coordinates(m_connection, window, root(), 0, 0), nullptr));
    if (!geometry || !corner) {
        throw std::runtime_error("the window has gone");
    }
    return {corner->dst_x, corner->dst_y, geometry->width, geometry->height};
}

void XConnection::askWindowManager(const std::string& message, xcb_window_t window,
                                   const std::vector<std::uint32_t>& values) const {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom(message);
    std::copy(values.begin(), values.end(), std::begin(event.data.data32));
    char bytes[32];
    std::memcpy(bytes, &event, sizeof bytes);
    xcb_send_event(m_connection, 0, root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   bytes);
    synchronise();
}

void XConnection::synchronise() const {
    focusedWindow();
}

} // namespace quillon::test
