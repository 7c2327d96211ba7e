#include "desktop/x11/SingleInstance.h"

#include "desktop/x11/ServerGrab.h"
#include "desktop/x11/XcbHandles.h"

#include <array>
#include <cstring>
#include <string_view>
#include <utility>

namespace quillon::desktop {

namespace {

constexpr std::string_view activateMessage = "_QUILLON_MARK_ACTIVATE";

xcb_intern_atom_cookie_t requestAtom(xcb_connection_t* connection, std::string_view name) {
    constexpr std::uint8_t evenIfNew = 0;
    return xcb_intern_atom(connection, evenIfNew, static_cast<std::uint16_t>(name.size()),
                           name.data());
}

xcb_atom_t awaitAtom(xcb_connection_t* connection, xcb_intern_atom_cookie_t cookie) {
    const XcbOwned<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

/// Sends an event to the client that made a window.
template <typename Event>
xcb_void_cookie_t sendEvent(xcb_connection_t* connection, xcb_window_t window, const Event& event) {
    // An event on the wire has 32 bytes, its type may be shorter.
    std::array<char, 32> bytes{};
    static_assert(sizeof event <= bytes.size());
    std::memcpy(bytes.data(), &event, sizeof event);
    return xcb_send_event_checked(connection, 0, window, XCB_EVENT_MASK_NO_EVENT, bytes.data());
}

} // namespace

std::string SingleInstance::selectionName(std::uint32_t userID) {
    return "_QUILLON_MARK_INSTANCE_" + std::to_string(userID);
}

SingleInstance::SingleInstance(xcb_connection_t* connection, xcb_window_t root,
                               std::string selectionName)
    : m_connection(connection)
    , m_root(root)
    , m_selectionName(std::move(selectionName)) {}

SingleInstance::~SingleInstance() {
    if (m_window != XCB_WINDOW_NONE) {
        const auto cookie = xcb_destroy_window_checked(m_connection, m_window);
        xcb_discard_reply(m_connection, cookie.sequence);
        xcb_flush(m_connection);
    }
}

SingleInstance::Outcome SingleInstance::acquire() {
    if (!internAtoms()) {
        return Outcome::failed;
    }
    while (xcb_connection_has_error(m_connection) == 0) {
        const xcb_window_t owner = ownerAfterClaim();
        if (owner == XCB_WINDOW_NONE) {
            break;
        }
        if (owner == m_window) {
            return Outcome::first;
        }
        if (activate(owner)) {
            return Outcome::handedOver;
        }
        // The owner went between the two requests, so the place may be free now.
    }
    return Outcome::failed;
}

bool SingleInstance::internAtoms() {
    const auto selection = requestAtom(m_connection, m_selectionName);
    const auto message = requestAtom(m_connection, activateMessage);
    m_selection = awaitAtom(m_connection, selection);
    m_activate = awaitAtom(m_connection, message);
    return m_selection != XCB_ATOM_NONE && m_activate != XCB_ATOM_NONE;
}

xcb_window_t SingleInstance::ownerAfterClaim() {
    const ServerGrab grab(m_connection);
    const XcbOwned<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        m_connection, xcb_get_selection_owner(m_connection, m_selection), nullptr));
    if (!reply) {
        return XCB_WINDOW_NONE;
    }
    if (reply->owner != XCB_WINDOW_NONE) {
        return reply->owner;
    }
    if (m_window == XCB_WINDOW_NONE) {
        m_window = xcb_generate_id(m_connection);
        const auto created = xcb_create_window_checked(
            m_connection, XCB_COPY_FROM_PARENT, m_window, m_root, -1, -1, 1, 1, 0,
            XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_discard_reply(m_connection, created.sequence);
    }
    // With the server grabbed nobody can come first, so the current time is no risk.
    const auto claimed =
        xcb_set_selection_owner_checked(m_connection, m_window, m_selection, XCB_CURRENT_TIME);
    return requestError(m_connection, claimed) ? xcb_window_t{XCB_WINDOW_NONE} : m_window;
}

bool SingleInstance::activate(xcb_window_t owner) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = owner;
    message.type = m_activate;
    return !requestError(m_connection, sendEvent(m_connection, owner, message));
}

bool SingleInstance::handleEvent(const xcb_generic_event_t& event) {
    if (m_window == XCB_WINDOW_NONE) {
        return false;
    }
    switch (eventType(event)) {
    case XCB_CLIENT_MESSAGE: {
        const auto& message = eventAs<xcb_client_message_event_t>(event);
        if (message.window != m_window) {
            return false;
        }
        if (message.type == m_activate && onActivated) {
            onActivated();
        }
        return true;
    }
    case XCB_SELECTION_REQUEST: {
        const auto& request = eventAs<xcb_selection_request_event_t>(event);
        if (request.owner != m_window) {
            return false;
        }
        refuse(request);
        return true;
    }
    case XCB_SELECTION_CLEAR:
        return eventAs<xcb_selection_clear_event_t>(event).owner == m_window;
    default:
        return false;
    }
}

void SingleInstance::refuse(const xcb_selection_request_event_t& request) {
    xcb_selection_notify_event_t notify{};
    notify.response_type = XCB_SELECTION_NOTIFY;
    notify.time = request.time;
    notify.requestor = request.requestor;
    notify.selection = request.selection;
    notify.target = request.target;
    notify.property = XCB_ATOM_NONE;
    const auto cookie = sendEvent(m_connection, request.requestor, notify);
    xcb_discard_reply(m_connection, cookie.sequence);
    xcb_flush(m_connection);
}

} // namespace quillon::desktop
