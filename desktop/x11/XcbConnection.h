#pragma once

#include "desktop/x11/XcbHeaders.h"

#include <memory>
#include <string>

namespace quillon::desktop {

struct XcbDisconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

/// A connection of its own to an X server. Its end frees all that was made over it.
using XcbConnection = std::unique_ptr<xcb_connection_t, XcbDisconnect>;

/// Null when the display does not answer.
inline XcbConnection connectTo(const std::string& displayName) {
    XcbConnection connection(xcb_connect(displayName.c_str(), nullptr));
    if (xcb_connection_has_error(connection.get()) != 0) {
        return nullptr;
    }
    return connection;
}

} // namespace quillon::desktop
