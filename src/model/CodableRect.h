#pragma once

#include "foundation/Geometry.h"

namespace quillon {

/// A rectangle as four plain numbers. It is not standardised: what comes in goes out.
struct CodableRect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    CodableRect() = default;
    explicit CodableRect(const CGRect& rect)
        : x(rect.x)
        , y(rect.y)
        , width(rect.width)
        , height(rect.height) {}

    CGRect cgRect() const { return {x, y, width, height}; }

    friend bool operator==(const CodableRect&, const CodableRect&) = default;
};

} // namespace quillon
