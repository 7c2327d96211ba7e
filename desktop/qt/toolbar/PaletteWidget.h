#pragma once

#include "desktop/qt/ControlsWidget.h"
#include "desktop/qt/toolbar/Panel.h"
#include "toolbar/FloatingToolbarView.h"

#include <memory>
#include <vector>

namespace quillon::desktop {

class ColorPopover;
class ToolbarButtonWidget;

/// The floating palette on the screen.
class PaletteWidget : public ControlsWidget {
public:
    PaletteWidget(std::shared_ptr<FloatingToolbarView> toolbar, QWidget& parent);
    ~PaletteWidget() override;

    QRectF body() const override;
    QRegion outline() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void bringUpToDate() override;

private:
    void layOut(const PaletteRow& row);
    void addKeys(const KeyEquivalent& keys, ToolbarButtonWidget& button);
    void followPopover();

    std::shared_ptr<FloatingToolbarView> m_toolbar;
    /// In the order of the row.
    std::vector<ToolbarButtonWidget*> m_buttons;
    Panel m_panel;
    std::unique_ptr<ColorPopover> m_popover;
};

} // namespace quillon::desktop
