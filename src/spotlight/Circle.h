#pragma once

#include "foundation/Geometry.h"

namespace quillon {

struct Circle {
    CGPoint center;
    CGFloat radius = 0;

    CGRect bounds() const {
        return rectBetween({center.x - radius, center.y - radius},
                           {center.x + radius, center.y + radius});
    }

    friend bool operator==(const Circle&, const Circle&) = default;
};

} // namespace quillon
