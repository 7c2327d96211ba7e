#pragma once

#include "desktop/x11/XcbHeaders.h"

#include <cstdlib>
#include <memory>

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
