#pragma once

#include "desktop/qt/toolbar/PaintedButton.h"
#include "toolbar/FloatingToolbarView.h"

namespace quillon::desktop {

/// A bar as thick as the line that it chooses.
class PresetButton : public PaintedButton {
public:
    PresetButton(const LineWidthPreset& preset, QWidget& parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    CGFloat m_thickness;
};

} // namespace quillon::desktop
