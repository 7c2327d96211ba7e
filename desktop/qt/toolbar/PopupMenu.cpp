#include "desktop/qt/toolbar/PopupMenu.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/PopupSurface.h"

#include <QStyleOptionMenuItem>

namespace quillon::desktop {

PopupMenu::PopupMenu(QWidget& parent)
    : QMenu(&parent) {
    setStyle(&m_style);
    setWindowFlag(Qt::FramelessWindowHint);
    setWindowFlag(Qt::NoDropShadowWindowHint);
    prepareSurface(*this);
}

void PopupMenu::initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const {
    QMenu::initStyleOption(option, action);
    if (action && action == m_destructive) {
        option->palette.setColor(QPalette::WindowText,
                                 toQColor(SystemColor::systemRedColor, option->palette));
    }
}

} // namespace quillon::desktop
