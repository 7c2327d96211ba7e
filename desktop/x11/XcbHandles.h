#pragma once

#include "desktop/x11/XcbHeaders.h"

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace quillon::desktop {

struct FreeDeleter {
    void operator()(void* memory) const { std::free(memory); }
};

/// What the X library hands out to be freed: replies, errors and events.
template <typename T>
using XcbOwned = std::unique_ptr<T, FreeDeleter>;

/// The outcome of a checked request without a reply; empty when it succeeded. Waits for the server
/// unless a later request was already answered.
inline XcbOwned<xcb_generic_error_t> requestError(xcb_connection_t* connection,
                                                  xcb_void_cookie_t cookie) {
    return XcbOwned<xcb_generic_error_t>(xcb_request_check(connection, cookie));
}

/// "None" in the types of the fields that hold it: the headers give it as an enumerator.
inline constexpr xcb_atom_t noAtom = XCB_ATOM_NONE;
inline constexpr xcb_window_t noWindow = XCB_WINDOW_NONE;

/// The atom of that name, made when there is none yet; `noAtom` when the connection is broken.
inline xcb_atom_t atomNamed(xcb_connection_t* connection, std::string_view name) {
    const auto cookie =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const XcbOwned<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : noAtom;
}

/// The root window of the first X screen, which is the only one of today's servers.
inline xcb_window_t rootWindow(xcb_connection_t* connection) {
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

/// The type of an event without the mark that another client sent it.
inline std::uint8_t eventType(const xcb_generic_event_t& event) {
    return event.response_type & 0x7F;
}

inline bool wasSentByAClient(const xcb_generic_event_t& event) {
    return (event.response_type & 0x80) != 0;
}

/// The event read as its own type; the caller has looked at `eventType`.
template <typename T>
const T& eventAs(const xcb_generic_event_t& event) {
    return reinterpret_cast<const T&>(event);
}

} // namespace quillon::desktop
