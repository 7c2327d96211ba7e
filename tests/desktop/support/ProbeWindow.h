#pragma once

#include "desktop/support/ScreenReader.h"
#include "desktop/support/XConnection.h"

#include <string>

namespace quillon::test {

/// A window of another program: opaque, of one colour, in the window manager's hands. It counts
/// what reaches it.
class ProbeWindow {
public:
    struct Geometry {
        int x = 0;
        int y = 0;
        int width = 400;
        int height = 300;
    };

    /// Stands on the screen when the constructor returns.
    ProbeWindow(const std::string& display, const Geometry& geometry, Rgb color);

    int pressCount();
    int keyCount();
    bool hasKeyboard();
    /// Asks the window manager for the keyboard, as a click on a task bar would.
    void activate();
    /// Asks the window manager for the whole screen, above panels, as a film player would.
    void fillScreen();
    xcb_window_t id() const { return m_window; }
    xcb_connection_t* connection() const { return m_connection.get(); }

private:
    void countEvents();

    XConnection m_connection;
    xcb_window_t m_window;
    int m_presses = 0;
    int m_keys = 0;
    bool m_isExposed = false;
};

} // namespace quillon::test
