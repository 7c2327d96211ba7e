#pragma once

#include "foundation/Geometry.h"

#include <optional>

/// The arithmetic of the lens.
namespace quillon {

/// The square of the screen that fills a lens when it is magnified: `lensWidth` in points, `scale`
/// in pixels to a point, `center` and the result in image pixels.
CGRect zoomCaptureRect(CGPoint center, CGFloat lensWidth, CGFloat factor, CGFloat scale);

/// Where a square lens stands beside the pointer, in global coordinates: `offset.x` to the right of
/// it and `offset.y` below it, held inside of `visibleFrame`. Where the frame is smaller than the
/// lens, the left and the lower edge win.
CGRect zoomLensFrame(CGPoint cursor, CGFloat size, CGPoint offset,
                     const std::optional<CGRect>& visibleFrame);

/// The largest rectangle with the proportions of `size` in the middle of `bounds`; empty for an
/// empty size.
CGRect aspectFit(CGSize size, const CGRect& bounds);

} // namespace quillon
