#pragma once

#include "toolbar/FloatingToolbarView.h"

#include <QAbstractButton>

namespace quillon::desktop {

/// A round swatch that can be clicked. A translucent colour shows a chequered ground.
class SwatchButton : public QAbstractButton {
public:
    SwatchButton(const ColorSwatchView& face, QWidget& parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ColorSwatchView m_face;
};

} // namespace quillon::desktop
