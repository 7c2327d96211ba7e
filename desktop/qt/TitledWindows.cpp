#include "desktop/qt/TitledWindows.h"

#include "desktop/x11/WindowOrder.h"

#include <QGuiApplication>
#include <QWindow>

namespace quillon::desktop {

void keepBelowTitledWindows(xcb_connection_t* connection, xcb_window_t window) {
    for (const QWindow* other : QGuiApplication::topLevelWindows()) {
        const bool isShown =
            other->isVisible() && !other->windowStates().testFlag(Qt::WindowMinimized);
        if (!isShown || other->type() != Qt::Window) {
            continue;
        }
        const auto titled = static_cast<xcb_window_t>(other->winId());
        if (const auto frame = outermostWindow(connection, titled)) {
            stackBelow(connection, window, *frame);
        }
    }
}

} // namespace quillon::desktop
