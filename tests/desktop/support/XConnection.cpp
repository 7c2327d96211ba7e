#include "desktop/support/XConnection.h"

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

void XConnection::synchronise() const {
    focusedWindow();
}

} // namespace quillon::test
