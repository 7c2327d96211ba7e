#include "desktop/qt/TitledWindows.h"

#include "desktop/x11/WindowOrder.h"

#include <QGuiApplication>
#include <QWindow>

namespace quillon::desktop {

std::optional<xcb_window_t> titledWindowOnScreen(xcb_connection_t* connection) {
    for (const QWindow* window : QGuiApplication::topLevelWindows()) {
        const bool isShown =
            window->isVisible() && !window->windowStates().testFlag(Qt::WindowMinimized);
        if (isShown && window->type() == Qt::Window) {
            return outermostWindow(connection, static_cast<xcb_window_t>(window->winId()));
        }
    }
    return std::nullopt;
}

} // namespace quillon::desktop
