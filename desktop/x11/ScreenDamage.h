#pragma once

#include "desktop/x11/XcbHeaders.h"

#include <cstdint>
#include <optional>

namespace quillon::desktop {

/// Tells when something on the root window has changed, whoever drew it: a program, or a compositor
/// in its name.
///
/// 1. A change after a rest is told by an event, with the rectangle that it lies in.
/// 2. Of those that follow it, only one that lies outside of that rectangle is told, by an event
///    with a rectangle that holds them all.
/// 3. `take` forgets all changes, and the next one is told again.
/// So a screen that changes without end costs few events for each `take`.
class ScreenDamage {
public:
    /// Whether the server can tell of damage.
    static bool isOffered(xcb_connection_t* connection);

    /// The server must offer it. The connection must outlive this and frees what was made over it.
    ScreenDamage(xcb_connection_t* connection, xcb_window_t root);

    /// What holds all changes so far, in device pixels, when the event tells of a change.
    std::optional<xcb_rectangle_t> noticeIn(const xcb_generic_event_t& event) const;

    /// Forgets all changes up to now.
    void take();
    /// The same; true when one of the changes lay in `rect`, in device pixels. Waits for the
    /// server.
    bool takeWithin(const xcb_rectangle_t& rect);

private:
    xcb_connection_t* m_connection;
    std::uint32_t m_damage;
    std::uint32_t m_region;
    std::uint8_t m_noticeType;
};

} // namespace quillon::desktop
