#pragma once

#include "desktop/x11/XcbHeaders.h"

#include <cstdint>
#include <optional>

namespace quillon::desktop {

/// The keyboard, borrowed for a window that no window manager looks after, and given back to the
/// window that had it.
class KeyboardFocus {
public:
    explicit KeyboardFocus(xcb_connection_t* connection)
        : m_connection(connection) {}

    /// Gives the keyboard to `window`, which must be mapped, and remembers who had it.
    void take(xcb_window_t window);

    /// Gives the keyboard back if `window` still has it. When the window that had it is gone, the
    /// one under the pointer gets it.
    void giveBack(xcb_window_t window);

private:
    struct Holder {
        xcb_window_t window;
        std::uint8_t revertTo;
    };

    std::optional<Holder> holder() const;

    xcb_connection_t* m_connection;
    std::optional<Holder> m_previous;
};

} // namespace quillon::desktop
