#include "platform/Path.h"

namespace quillon {

void Path::addRect(const CGRect& rect) {
    move({rect.minX(), rect.minY()});
    addLine({rect.maxX(), rect.minY()});
    addLine({rect.maxX(), rect.maxY()});
    addLine({rect.minX(), rect.maxY()});
    closeSubpath();
}

void Path::addEllipse(const CGRect& rect) {
    // A quarter of a circle as one cubic: the control points stand this far along the tangent, a
    // part of the radius. It leaves the circle by less than 0.03 percent of the radius.
    constexpr CGFloat kappa = 0.5522847498307936;
    const CGPoint center = rect.center();
    const CGFloat rx = rect.width / 2;
    const CGFloat ry = rect.height / 2;
    const CGFloat kx = rx * kappa;
    const CGFloat ky = ry * kappa;
    const CGPoint right{center.x + rx, center.y};
    const CGPoint bottom{center.x, center.y + ry};
    const CGPoint left{center.x - rx, center.y};
    const CGPoint top{center.x, center.y - ry};
    move(right);
    addCurve(bottom, {right.x, right.y + ky}, {bottom.x + kx, bottom.y});
    addCurve(left, {bottom.x - kx, bottom.y}, {left.x, left.y + ky});
    addCurve(top, {left.x, left.y - ky}, {top.x - kx, top.y});
    addCurve(right, {top.x + kx, top.y}, {right.x, right.y - ky});
    closeSubpath();
}

CGRect Path::controlPointBounds() const {
    if (m_points.empty()) {
        return {};
    }
    CGPoint low = m_points.front();
    CGPoint high = low;
    for (const auto& point : m_points) {
        low = {std::min(low.x, point.x), std::min(low.y, point.y)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y)};
    }
    return rectBetween(low, high);
}

} // namespace quillon
