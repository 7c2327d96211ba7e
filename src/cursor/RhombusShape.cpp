#include "cursor/RhombusShape.h"

#include <algorithm>

namespace quillon {

Path RhombusShape::path(const CGRect& rect) const {
    const CGPoint center = rect.center();
    const CGFloat half = std::min(rect.width, rect.height) / 2;
    Path path;
    path.move({center.x, center.y - half});
    path.addLine({center.x + half, center.y});
    path.addLine({center.x, center.y + half});
    path.addLine({center.x - half, center.y});
    path.closeSubpath();
    return path;
}

} // namespace quillon
