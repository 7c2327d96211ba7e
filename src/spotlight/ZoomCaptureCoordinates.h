#pragma once

#include "foundation/Geometry.h"

namespace quillon {

/// A namespace for the arithmetic of image points.
struct ZoomCaptureCoordinates {
    ZoomCaptureCoordinates() = delete;

    /// A point in global coordinates as pixels of a picture of the screen with that frame; `scale`
    /// in pixels to a point. Both have their origin at the bottom left: nothing is flipped.
    static CGPoint imagePoint(CGPoint point, const CGRect& screenFrame, CGFloat scale) {
        return {(point.x - screenFrame.minX()) * scale, (point.y - screenFrame.minY()) * scale};
    }
};

} // namespace quillon
