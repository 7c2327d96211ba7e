#include "spotlight/ZoomGeometry.h"

#include <algorithm>

namespace quillon {

CGRect zoomCaptureRect(CGPoint center, CGFloat lensWidth, CGFloat factor, CGFloat scale) {
    const CGFloat size = lensWidth / factor * scale;
    return {center.x - size / 2, center.y - size / 2, size, size};
}

CGRect zoomLensFrame(CGPoint cursor, CGFloat size, CGPoint offset,
                     const std::optional<CGRect>& visibleFrame) {
    CGFloat x = cursor.x + offset.x;
    CGFloat y = cursor.y - size - offset.y;
    if (visibleFrame) {
        x = std::max(visibleFrame->minX(), std::min(x, visibleFrame->maxX() - size));
        y = std::max(visibleFrame->minY(), std::min(y, visibleFrame->maxY() - size));
    }
    return {x, y, size, size};
}

CGRect aspectFit(CGSize size, const CGRect& bounds) {
    if (size.width <= 0 || size.height <= 0) {
        return {bounds.midX(), bounds.midY(), 0, 0};
    }
    const CGFloat factor = std::min(bounds.width / size.width, bounds.height / size.height);
    const CGSize fitted{size.width * factor, size.height * factor};
    return {bounds.midX() - fitted.width / 2, bounds.midY() - fitted.height / 2, fitted.width,
            fitted.height};
}

} // namespace quillon
