#pragma once

#include "foundation/Color.h"
#include "foundation/Geometry.h"
#include "platform/GraphicsContext.h"

namespace quillon {

/// A round swatch: a disc, and round it a ring while it is the selected one. Sizes in points.
struct ColorSwatchView {
    static constexpr CGFloat ringLineWidth = 2;
    /// What the ring's diameter has beyond that of the disc.
    static constexpr CGFloat ringMargin = 4;
    static constexpr Color ringColor = Color::white;
    static constexpr Shadow ringShadow{Color(0, 0, 0, 0.3), 2, {0, 0}};

    Color color = Color::black;
    bool isSelected = false;
    /// The diameter of the disc.
    CGFloat size = 0;

    CGFloat ringDiameter() const { return size + ringMargin; }

    friend bool operator==(const ColorSwatchView&, const ColorSwatchView&) = default;
};

} // namespace quillon
