#pragma once

#include "desktop/x11/XcbConnection.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>

namespace quillon::desktop {

/// What the pointer did in a window. The place is in device pixels of that window, from the top
/// left, with whatever fraction the device knows.
struct WindowPointerEvent {
    enum class Kind { enter, motion, press, release };

    Kind kind = Kind::motion;
    double x = 0;
    double y = 0;
    /// Of a press and a release: 1 for the primary button.
    std::uint32_t button = 0;
    /// Of a motion.
    bool isPrimaryHeld = false;
};

/// A window without a picture that lies over another window and takes the pointer in its place.
///
/// It has a connection of its own. A toolkit that reads its connection in a second thread would
/// have to wake that one and then the first for each motion of a pen.
class PointerWindow {
public:
    /// Over the whole of `parent`; null when the server's pointer events cannot be had this way.
    static std::unique_ptr<PointerWindow> over(xcb_window_t parent, const std::string& display);
    PointerWindow(const PointerWindow&) = delete;
    PointerWindow& operator=(const PointerWindow&) = delete;

    /// Takes the pointer in these rectangles of the parent, in device pixels, and nowhere else.
    void cover(std::span<const xcb_rectangle_t> rectangles);

    /// Readable when something may wait.
    int fileDescriptor() const { return xcb_get_file_descriptor(m_connection.get()); }
    /// False once the server has gone, and then for good.
    bool isAlive() const { return xcb_connection_has_error(m_connection.get()) == 0; }
    /// Hands out everything that has arrived, in order.
    void dispatch(const std::function<void(const WindowPointerEvent&)>& handler);

private:
    PointerWindow(XcbConnection connection, std::uint8_t extension, xcb_window_t window);

    XcbConnection m_connection;
    /// The number by which events name the extension.
    std::uint8_t m_extension;
    xcb_window_t m_window;
};

} // namespace quillon::desktop
