#pragma once

#include "desktop/qt/toolbar/MenuStyle.h"

#include <QMenu>

namespace quillon::desktop {

/// A menu in the look of the palette.
class PopupMenu : public QMenu {
public:
    explicit PopupMenu(QWidget& parent);

    /// Shows this entry as one that takes something away.
    void setDestructive(const QAction* entry) { m_destructive = entry; }

protected:
    void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override;

private:
    MenuStyle m_style;
    const QAction* m_destructive = nullptr;
};

} // namespace quillon::desktop
