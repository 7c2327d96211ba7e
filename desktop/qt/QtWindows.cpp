#include "desktop/qt/QtWindows.h"

#include "desktop/qt/QtWindow.h"

namespace quillon::desktop {

std::unique_ptr<WindowBackend> QtWindows::makeWindow(Window& window) {
    if (contains(window.styleMask(), WindowStyleMask::titled)) {
        return std::make_unique<QtTitledWindow>(window, m_application, m_layOutControls);
    }
    return std::make_unique<QtWindow>(
        window, QtWindow::Surroundings{m_connection, m_compositor, m_pointerHolders});
}

} // namespace quillon::desktop
