#include "desktop/qt/QtApplication.h"

#include <QGuiApplication>
#include <QWindow>

namespace quillon::desktop {

void QtApplication::setActivationPolicy(ActivationPolicy /*policy*/) {}

void QtApplication::activate(bool /*ignoringOtherApps*/) {
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        // The overlay-like windows stand outside the window manager, which could not help them.
        if (window->isVisible() && !(window->flags() & Qt::BypassWindowManagerHint) &&
            window->type() == Qt::Window) {
            window->raise();
        }
    }
}

void QtApplication::terminate() {
    // Not quit(), which asks every window first and stays if one of them declines.
    QCoreApplication::exit(0);
}

} // namespace quillon::desktop
