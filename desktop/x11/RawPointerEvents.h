#pragma once

#include "desktop/x11/XcbHeaders.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace quillon::desktop {

/// What a hand did to the pointer, whichever program it was meant for.
struct RawPointerEvent {
    enum class Kind { motion, press };

    Kind kind = Kind::motion;
    /// Of a press: the button as the user's mapping names it, 1 for the primary one.
    std::uint8_t button = 0;

    friend bool operator==(const RawPointerEvent&, const RawPointerEvent&) = default;
};

/// The resource identifiers of one client of the server.
struct ClientIds {
    explicit ClientIds(xcb_connection_t* connection);

    bool contains(xcb_window_t window) const { return (window & ~m_mask) == m_base; }

private:
    std::uint32_t m_base;
    std::uint32_t m_mask;
};

/// Where the pointer is at one moment.
struct PointerState {
    /// In device pixels of the root window, from the top left.
    std::int16_t x = 0;
    std::int16_t y = 0;
    bool isButtonHeld = false;
    /// The topmost window of the screen that would get a press here, or none. A window that lets
    /// the pointer through is never the one.
    xcb_window_t topWindow = 0;
};

/// Asks the server; a broken connection answers with the corner of the screen.
PointerState pointerState(xcb_connection_t* connection);

/// Raw events of all pointer devices, present and future, by the XInput extension on the root
/// window.
///
/// It has a connection of its own: what waits there is a burst of motions and nothing else, it can
/// be emptied and asked without a detour through a toolkit, and when it goes the server has nothing
/// to tell any more.
class RawPointerEvents {
public:
    /// Listens from now on; null when the server cannot tell.
    static std::unique_ptr<RawPointerEvents> listen(const std::string& display);
    RawPointerEvents(const RawPointerEvents&) = delete;
    RawPointerEvents& operator=(const RawPointerEvents&) = delete;

    /// Readable when something may wait.
    int fileDescriptor() const { return xcb_get_file_descriptor(m_connection.get()); }
    /// False once the server has gone, and then for good.
    bool isAlive() const { return xcb_connection_has_error(m_connection.get()) == 0; }

    /// Appends what has happened since the last call, in order. Motions with no press between them
    /// are one. The wheel turns without a trace, and so does a button that the mapping switches
    /// off.
    void take(std::vector<RawPointerEvent>& events);

    PointerState pointer() const { return pointerState(m_connection.get()); }
    /// Whether a press at this place would go to a window of that client, also when it lies in a
    /// frame of a window manager or in another program's panel.
    bool goesTo(const ClientIds& client, const PointerState& pointer) const;

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

    RawPointerEvents(Connection connection, std::uint8_t extension);

    void note(const xcb_generic_event_t& event, std::vector<RawPointerEvent>& events) const;
    std::uint8_t mappedButton(std::uint32_t physicalButton) const;

    Connection m_connection;
    /// The number by which events name the extension.
    std::uint8_t m_extension;
};

} // namespace quillon::desktop
