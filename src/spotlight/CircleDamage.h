#pragma once

#include "platform/Damage.h"
#include "spotlight/Circle.h"

namespace quillon {

/// Where the pictures of two circles differ, their edges included, in bands: narrow ones round the
/// edges when the two lie nearly over each other, else the whole of both. It never covers more than
/// the squares round the two, but for one point on each side.
Damage differenceOfCircles(const Circle& a, const Circle& b);

} // namespace quillon
