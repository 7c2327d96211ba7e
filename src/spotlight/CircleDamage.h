#pragma once

#include "platform/Damage.h"
#include "spotlight/Circle.h"

namespace quillon {

/// Where the pictures of two circles differ, their edges included: a ring of narrow rectangles when
/// they lie nearly over each other, else both as a whole. It never covers more than the rectangles
/// round the two, but for one point on each side.
Damage differenceOfCircles(const Circle& a, const Circle& b);

} // namespace quillon
