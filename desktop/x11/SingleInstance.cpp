#include "desktop/x11/SingleInstance.h"

#include "desktop/x11/ServerGrab.h"

#include <array>
#include <cstring>
#include <string_view>
#include <utility>

namespace quillon::desktop {

namespace {

constexpr std::string_view activateMessage = "_QUILLON_MARK_ACTIVATE";

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
    if (m_window != noWindow) {
        const auto cookie = xcb_destroy_window_checked(m_connection, m_window);
        xcb_discard_reply(m_connection, cookie.sequence);
        xcb_flush(m_connection);
    }
}

SingleInstance::Outcome SingleInstance::acquire() {
    m_selection = atomNamed(m_connection, m_selectionName);
    m_activate = atomNamed(m_connection, activateMessage);
    while (xcb_connection_has_error(m_connection) == 0) {
        const xcb_window_t owner = ownerAfterClaim();
        if (owner == noWindow) {
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

xcb_window_t SingleInstance::ownerAfterClaim() {
    const ServerGrab grab(m_connection);
    const XcbOwned<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        m_connection, xcb_get_selection_owner(m_connection, m_selection), nullptr));
    if (!reply) {
        return noWindow;
    }
    if (reply->owner != noWindow) {
        return reply->owner;
    }
    if (m_window == noWindow) {
        m_window = xcb_generate_id(m_connection);
        const auto created = xcb_create_window_checked(
            m_connection, XCB_COPY_FROM_PARENT, m_window, m_root, -1, -1, 1, 1, 0,
            XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_discard_reply(m_connection, created.sequence);
    }
    // With the server grabbed nobody can come first, so the current time is no risk.
    const auto claimed =
        xcb_set_selection_owner_checked(m_connection, m_window, m_selection, XCB_CURRENT_TIME);
    return requestError(m_connection, claimed) ? noWindow : m_window;
}

bool SingleInstance::activate(xcb_window_t owner) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = owner;
    message.type = m_activate;
    return !requestError(m_connection, sendEvent(m_connection, owner, message)) &&
           xcb_connection_has_error(m_connection) == 0;
}

bool SingleInstance::handleEvent(const xcb_generic_event_t& event) {
    if (m_window == noWindow) {
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
    notify.property = noAtom;
    const auto cookie = sendEvent(m_connection, request.requestor, notify);
    xcb_discard_reply(m_connection, cookie.sequence);
    xcb_flush(m_connection);
}

} // namespace quillon::desktop
