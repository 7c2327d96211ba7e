#pragma once

#include "toolbar/FloatingToolbarView.h"

#include <QAbstractButton>

namespace quillon::desktop {

/// A bar as thick as the line that it chooses.
class PresetButton : public QAbstractButton {
public:
    PresetButton(const LineWidthPreset& preset, QWidget& parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    CGFloat m_thickness;
};

} // namespace quillon::desktop
