#pragma once

#include "desktop/x11/XcbHeaders.h"

namespace quillon::desktop {

/// Keeps the server from serving any other program for as long as it lives, which must be short.
class ServerGrab {
public:
    explicit ServerGrab(xcb_connection_t* connection)
        : m_connection(connection) {
        xcb_grab_server(m_connection);
    }
    ~ServerGrab() {
        xcb_ungrab_server(m_connection);
        xcb_flush(m_connection);
    }
    ServerGrab(const ServerGrab&) = delete;
    ServerGrab& operator=(const ServerGrab&) = delete;

private:
    xcb_connection_t* m_connection;
};

} // namespace quillon::desktop
