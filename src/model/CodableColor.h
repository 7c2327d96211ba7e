#pragma once

#include "foundation/Color.h"

namespace quillon {

/// A colour as four sRGB components, none of them clamped.
struct CodableColor {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 0;

    CodableColor() = default;
    /// The colour's value at this moment. One that does not convert to sRGB is read in its own
    /// colour space.
    explicit CodableColor(const Color& color) {
        const auto parts = color.resolved();
        red = parts.red;
        green = parts.green;
        blue = parts.blue;
        alpha = parts.alpha;
    }

    Color color() const { return {ColorSpace::sRGB, red, green, blue, alpha}; }
    NSColor nsColor() const { return NSColor::colorWithRed(red, green, blue, alpha); }

    friend bool operator==(const CodableColor&, const CodableColor&) = default;
};

} // namespace quillon
