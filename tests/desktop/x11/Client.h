#pragma once

#include "desktop/support/Eventually.h"
#include "desktop/support/XConnection.h"
#include "desktop/x11/XcbHandles.h"

#include <functional>
#include <string>

namespace quillon::test {

/// A program on a display: its connection and the events that it has been sent.
class Client {
public:
    using Handler = std::function<void(const xcb_generic_event_t&)>;

    explicit Client(const std::string& display)
        : m_connection(display) {}

    xcb_connection_t* connection() const { return m_connection.get(); }
    xcb_window_t root() const { return m_connection.root(); }

    /// Waits until the server has dealt with everything that was asked so far.
    void sync() const { m_connection.synchronise(); }

    /// Hands over every event that the server had for this program at the time of the call.
    void pump(const Handler& handler) const;

    /// Hands events over as they come until `done` holds; false when it does not within the bound.
    bool pumpUntil(const std::function<bool()>& done, const Handler& handler) const;

private:
    XConnection m_connection;
};

} // namespace quillon::test
