#pragma once

#include "desktop/qt/toolbar/PaintedButton.h"
#include "toolbar/FloatingToolbarView.h"

namespace quillon::desktop {

/// A round swatch that can be clicked. A translucent colour shows a chequered ground.
class SwatchButton : public PaintedButton {
public:
    SwatchButton(const ColorSwatchView& face, QWidget& parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ColorSwatchView m_face;
};

} // namespace quillon::desktop
