#pragma once

#include "desktop/qt/toolbar/MenuStyle.h"

#include <QMenu>

namespace quillon::desktop {

/// A menu in the look of the palette.
class PopupMenu : public QMenu {
public:
    explicit PopupMenu(QWidget& parent);

private:
    MenuStyle m_style;
};

} // namespace quillon::desktop
