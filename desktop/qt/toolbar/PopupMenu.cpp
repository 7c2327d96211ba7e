#include "desktop/qt/toolbar/PopupMenu.h"

#include "desktop/qt/PopupSurface.h"

namespace quillon::desktop {

PopupMenu::PopupMenu(QWidget& parent)
    : QMenu(&parent) {
    setStyle(&m_style);
    setWindowFlag(Qt::FramelessWindowHint);
    setWindowFlag(Qt::NoDropShadowWindowHint);
    prepareSurface(*this);
}

} // namespace quillon::desktop
