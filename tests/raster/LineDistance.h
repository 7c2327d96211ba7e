#pragma once

#include "raster/Flattening.h"

#include <algorithm>

namespace quillon::test {

/// How far a place is from the nearest point of a line.
inline CGFloat distanceOf(const LinePiece& line, CGPoint place) {
    const CGPoint along = line.end - line.start;
    const CGPoint to = place - line.start;
    const CGFloat square = along.x * along.x + along.y * along.y;
    const CGFloat part =
        square > 0 ? std::clamp((to.x * along.x + to.y * along.y) / square, 0.0, 1.0) : 0;
    return distance(place, line.start + along * part);
}

} // namespace quillon::test
