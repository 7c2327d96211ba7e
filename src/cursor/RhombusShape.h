#pragma once

#include "platform/Path.h"

namespace quillon {

/// A square that stands on its corner.
struct RhombusShape {
    /// Centred in `rect` and as large as the shorter side allows. Its points are the upper, right,
    /// lower and left one in view coordinates, in this order.
    Path path(const CGRect& rect) const;
};

} // namespace quillon
