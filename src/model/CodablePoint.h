#pragma once

#include "foundation/Geometry.h"

namespace quillon {

/// A point as two plain numbers, in the coordinates of whoever holds it.
struct CodablePoint {
    double x = 0;
    double y = 0;

    CodablePoint() = default;
    explicit CodablePoint(CGPoint point)
        : x(point.x)
        , y(point.y) {}

    CGPoint cgPoint() const { return {x, y}; }

    friend bool operator==(const CodablePoint&, const CodablePoint&) = default;
};

} // namespace quillon
