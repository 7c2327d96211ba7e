#pragma once

#include "foundation/Color.h"
#include "foundation/Geometry.h"
#include "platform/Bitmap.h"

#include <memory>

namespace quillon {

/// A picture that is one colour everywhere but where a bitmap stands. Nothing of the colour shines
/// through the bitmap.
struct StampedPicture {
    Color ground;
    /// Painted to the end: another picture is another bitmap.
    std::shared_ptr<const Bitmap> stamp;
    /// Where the bitmap's corner stands, a whole number of device pixels.
    CGPoint corner;
};

} // namespace quillon
