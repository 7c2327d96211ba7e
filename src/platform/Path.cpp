#include "platform/Path.h"

#include <algorithm>
#include <numbers>
#include <utility>

namespace quillon {

void Path::append(Verb verb, std::initializer_list<CGPoint> points) {
    m_verbs.push_back(verb);
    m_points.insert(m_points.end(), points);
}

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

void Path::addContinuousRoundedRect(const CGRect& rect, CGFloat cornerRadius) {
    // Half a corner is one cubic from the side to the diagonal; the other half mirrors it, so the
    // curvatures of the two agree where they meet. With the corner's tip at the origin and a side
    // along x, it runs from (reach, 0) over (bend, 0) and (2m, 0) to (m, m). Three points on the
    // side make the curvature begin at none; the last two stand along the tangent on the diagonal.
    // There the curvature is 2/3 |(P3 - P2) x (P2 - P1)| / |P3 - P2|^3, and the bend makes that
    // 1 / radius.
    const CGFloat half = std::min(rect.width, rect.height) / 2;
    const CGFloat radius = std::clamp(cornerRadius, 0.0, std::max(half, 0.0));
    const CGFloat m = radius * (1 - std::numbers::sqrt2 / 2);
    const CGFloat bend = radius > 0 ? 2 * m + 3 * std::numbers::sqrt2 * m * m / radius : 0;
    const CGFloat reach = std::min(1.5 * radius, half);

    struct Corner {
        CGPoint tip;
        /// Unit vectors from the tip along the side that leads to it, and along the next.
        CGPoint before;
        CGPoint after;
    };
    const Corner corners[] = {
        {{rect.maxX(), rect.minY()}, {-1, 0}, {0, 1}},
        {{rect.maxX(), rect.maxY()}, {0, -1}, {-1, 0}},
        {{rect.minX(), rect.maxY()}, {1, 0}, {0, -1}},
        {{rect.minX(), rect.minY()}, {0, 1}, {1, 0}},
    };
    bool isFirst = true;
    for (const auto& [tip, before, after] : corners) {
        const CGPoint start = tip + before * reach;
        if (std::exchange(isFirst, false)) {
            move(start);
        } else {
            addLine(start);
        }
        const CGPoint middle = tip + before * m + after * m;
        addCurve(middle, tip + before * bend, tip + before * (2 * m));
        addCurve(tip + after * reach, tip + after * (2 * m), tip + after * bend);
    }
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
