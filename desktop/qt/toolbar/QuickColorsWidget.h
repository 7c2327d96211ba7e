#pragma once

#include "toolbar/FloatingToolbarView.h"

#include <QWidget>

#include <vector>

namespace quillon::desktop {

/// The grid of quick colours in the popover.
class QuickColorsWidget : public QWidget {
public:
    /// What the ring of a swatch reaches beyond the grid, in points. The widget has this much more
    /// on the left, at the top and at the bottom.
    static constexpr int overhang = 5;

    explicit QuickColorsWidget(QWidget& parent);

    void follow(const std::vector<ColorPickerView::QuickColorCell>& cells);

private:
    /// -1 when none has the keyboard.
    int focusedCell() const;
    void addCell(const ColorPickerView::QuickColorCell& cell, int index);

    /// What the cells that stand were made of.
    std::vector<Color> m_colors;
    std::vector<QWidget*> m_children;
};

} // namespace quillon::desktop
