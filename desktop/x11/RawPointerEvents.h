#pragma once

#include "desktop/x11/XcbConnection.h"

#include <xcb/xinput.h>

#include <compare>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace quillon::desktop {

/// What a hand did to the pointer, whichever program it was meant for.
struct RawPointerEvent {
    /// A drag is a motion with one of the first three buttons held, the only ones beside the wheel
    /// of which the server keeps account for everybody.
    enum class Kind { motion, drag, press };

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
    /// The innermost window under the pointer, or none but the root window. It may lie in a frame
    /// of a window manager or in another program's panel; a window that lets the pointer through is
    /// never the one.
    xcb_window_t window = 0;
};

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
    /// are one, and so are drags. The wheel turns without a trace, and so does a button that the
    /// mapping switches off.
    void take(std::vector<RawPointerEvent>& events);

    /// Asks the server.
    PointerState pointer();
    /// Whether the pointer was last found over a window of that client, or over one that lies in
    /// such a window.
    bool wasOver(const ClientIds& client) const;

private:
    RawPointerEvents(XcbConnection connection, std::uint8_t extension);

    /// A button of one of the devices that move the pointer.
    struct Button {
        xcb_input_device_id_t device = 0;
        std::uint32_t number = 0;

        friend auto operator<=>(const Button&, const Button&) = default;
    };

    void note(const xcb_generic_event_t& event, std::vector<RawPointerEvent>& events);
    void noteMotion(std::vector<RawPointerEvent>& events) const;
    void notePress(const Button& button, std::vector<RawPointerEvent>& events);
    /// Gives up the answers to all requests from one on.
    void discard(std::vector<xcb_query_pointer_cookie_t>& asked, std::size_t from) const;
    std::uint8_t mappedButton(std::uint32_t physicalButton) const;

    XcbConnection m_connection;
    /// The number by which events name the extension.
    std::uint8_t m_extension;
    /// By the events taken so far: what the server would answer is later than they are. A device
    /// that goes lets go of its buttons first.
    std::set<Button> m_heldButtons;
    /// From the root window to the one in which the pointer was last.
    std::vector<xcb_window_t> m_wayDown;
};

} // namespace quillon::desktop
