#pragma once

#include "foundation/Geometry.h"

namespace quillon::test {

/// A point of a cubic Bézier curve, by the parameter from 0 to 1.
inline CGPoint onCurve(CGPoint start, CGPoint control1, CGPoint control2, CGPoint end, double t) {
    const double u = 1 - t;
    return start * (u * u * u) + control1 * (3 * u * u * t) + control2 * (3 * u * t * t) +
           end * (t * t * t);
}

} // namespace quillon::test
