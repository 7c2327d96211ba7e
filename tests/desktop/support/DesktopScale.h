#pragma once

#include "desktop/support/XConnection.h"

#include <cstdint>
#include <string>

namespace quillon::test {

/// The service by which a desktop tells its programs at what scale to show themselves, and tells
/// them anew when the user changes it.
class DesktopScale {
public:
    DesktopScale(const std::string& display, int percent);

    void change(int percent);

private:
    XConnection m_connection;
    xcb_window_t m_window;
    std::uint32_t m_serial = 0;
};

} // namespace quillon::test
