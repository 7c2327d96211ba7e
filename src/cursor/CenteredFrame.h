#pragma once

#include "foundation/Geometry.h"

#include <algorithm>

namespace quillon {

/// The square frame of a view in the middle of its surroundings. A side below zero counts as none.
inline CGRect centeredFrame(CGPoint center, CGFloat side) {
    const CGFloat length = std::max(side, 0.0);
    return {center.x - length / 2, center.y - length / 2, length, length};
}

} // namespace quillon
