#pragma once

#include "foundation/Geometry.h"

#include <cstdint>
#include <initializer_list>
#include <vector>

namespace quillon {

/// A two-dimensional path of lines and cubic curves, in points.
class Path {
public:
    enum class Verb : std::uint8_t { move, line, curve, close };

    void move(CGPoint to) { append(Verb::move, {to}); }
    void addLine(CGPoint to) { append(Verb::line, {to}); }
    void addCurve(CGPoint to, CGPoint control1, CGPoint control2) {
        append(Verb::curve, {control1, control2, to});
    }
    void closeSubpath() { append(Verb::close, {}); }
    void addRect(const CGRect& rect);
    /// The ellipse inscribed in `rect`, as four curves.
    void addEllipse(const CGRect& rect);
    /// A rectangle whose corners turn with continuous curvature: it is none where a side ends, and
    /// grows to that of a circle of `cornerRadius` on the corner's diagonal, which the outline
    /// crosses where that circle does. A corner begins one and a half radii before the sides would
    /// meet. The radius is at most half of the shorter side, and where there is no room, corners
    /// begin in the middle of a side.
    void addContinuousRoundedRect(const CGRect& rect, CGFloat cornerRadius);

    bool isEmpty() const { return m_verbs.empty(); }
    void clear() {
        m_verbs.clear();
        m_points.clear();
    }

    /// One for each element, in order.
    const std::vector<Verb>& verbs() const { return m_verbs; }
    /// A move and a line have one point; a curve has its two control points and its end.
    const std::vector<CGPoint>& points() const { return m_points; }

    /// The bounds of all points, control points included; all zero for an empty path.
    CGRect controlPointBounds() const;

    friend bool operator==(const Path&, const Path&) = default;

private:
    void append(Verb verb, std::initializer_list<CGPoint> points);

    std::vector<Verb> m_verbs;
    std::vector<CGPoint> m_points;
};

} // namespace quillon
