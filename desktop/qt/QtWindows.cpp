#include "desktop/qt/QtWindows.h"

#include <algorithm>

namespace quillon::desktop {

std::unique_ptr<WindowBackend> QtWindows::makeWindow(Window& window) {
    if (contains(window.styleMask(), WindowStyleMask::titled)) {
        return std::make_unique<QtTitledWindow>(window, m_application, m_layOutControls);
    }
    return std::make_unique<QtWindow>(
        window,
        QtWindow::Surroundings{m_connection, m_compositor, m_panels, m_pointerHolders, m_windows});
}

bool QtWindows::hide(const xcb_rectangle_t& rect) const {
    return std::any_of(m_windows.begin(), m_windows.end(),
                       [&](const QtWindow* window) { return window->hides(rect); });
}

} // namespace quillon::desktop
