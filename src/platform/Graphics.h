#pragma once

#include "foundation/Geometry.h"
#include "platform/Bitmap.h"
#include "platform/GraphicsContext.h"

#include <memory>

namespace quillon {

/// What painting needs besides a context.
class Graphics {
public:
    virtual ~Graphics() = default;

    /// `size` in points, `scale` in device pixels to a point.
    virtual std::unique_ptr<Bitmap> makeBitmap(CGSize size, CGFloat scale) = 0;
    /// Where the ink of a text falls, with its top leading corner at the origin. In points.
    virtual CGRect inkBounds(const Text& text) = 0;
};

} // namespace quillon
