#pragma once

#include "platform/Window.h"

#include <xcb/xcb.h>

namespace quillon::desktop {

/// Makes the windows of the system, on the toolkit's connection to the X server.
class QtWindows : public Windows {
public:
    explicit QtWindows(xcb_connection_t* connection)
        : m_connection(connection) {}

    std::unique_ptr<WindowBackend> makeWindow(Window& window) override;

private:
    xcb_connection_t* m_connection;
};

} // namespace quillon::desktop
