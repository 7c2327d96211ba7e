#pragma once

#include "desktop/x11/XcbHeaders.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quillon::desktop {

/// A part of the root window that a person sees as one display.
struct Monitor {
    /// The atom of its name, which is the same on every connection for as long as the server runs.
    std::uint32_t number = 0;
    std::string name;
    /// In device pixels of the root window, y downward.
    xcb_rectangle_t frame{};
};

/// The active monitors, the primary one first; without RandR 1.5 the root window as a whole. Empty
/// when the connection is broken.
std::vector<Monitor> activeMonitors(xcb_connection_t* connection, xcb_window_t root);

/// The whole root window.
std::optional<xcb_rectangle_t> rootFrame(xcb_connection_t* connection, xcb_window_t root);

/// Asks for word of monitors that come, go or change: events of RandR. It takes the place of
/// whatever else was asked of RandR over this connection.
void watchMonitors(xcb_connection_t* connection, xcb_window_t root);
/// True for such an event.
bool tellsOfMonitors(xcb_connection_t* connection, const xcb_generic_event_t& event);

/// The numbers of monitors by their names.
class MonitorNumbers {
public:
    explicit MonitorNumbers(xcb_connection_t* connection)
        : m_connection(connection) {}

    /// Nothing for a name that the server has never heard of. Asks the server once for each name.
    std::optional<std::uint32_t> numberOf(const std::string& name);

private:
    xcb_connection_t* m_connection;
    std::map<std::string, std::uint32_t> m_known;
};

} // namespace quillon::desktop
