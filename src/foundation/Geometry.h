#pragma once

#include <algorithm>
#include <cmath>

/// Plain geometry in points, 64-bit floating point.
///
/// Two coordinate spaces are in use and a comment says which wherever it matters:
/// - global: origin at the bottom left of the primary screen, y grows upward;
/// - view: origin at the top left of the view, y grows downward.
namespace quillon {

using CGFloat = double;

struct CGPoint {
    CGFloat x = 0;
    CGFloat y = 0;

    friend bool operator==(const CGPoint&, const CGPoint&) = default;
};

inline CGPoint operator+(CGPoint a, CGPoint b) {
    return {a.x + b.x, a.y + b.y};
}
inline CGPoint operator-(CGPoint a, CGPoint b) {
    return {a.x - b.x, a.y - b.y};
}
inline CGPoint operator*(CGPoint a, CGFloat factor) {
    return {a.x * factor, a.y * factor};
}
inline CGPoint operator/(CGPoint a, CGFloat divisor) {
    return {a.x / divisor, a.y / divisor};
}

inline CGFloat distance(CGPoint a, CGPoint b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

struct CGSize {
    CGFloat width = 0;
    CGFloat height = 0;

    static const CGSize zero;

    friend bool operator==(const CGSize&, const CGSize&) = default;
};

inline constexpr CGSize CGSize::zero{0, 0};

/// A rectangle that keeps whatever it is given: the size may be negative, and nothing
/// standardises it behind the caller's back. The accessors assume a non-negative size.
struct CGRect {
    CGFloat x = 0;
    CGFloat y = 0;
    CGFloat width = 0;
    CGFloat height = 0;

    static const CGRect zero;

    CGFloat minX() const { return x; }
    CGFloat midX() const { return x + width / 2; }
    CGFloat maxX() const { return x + width; }
    CGFloat minY() const { return y; }
    CGFloat midY() const { return y + height / 2; }
    CGFloat maxY() const { return y + height; }
    CGPoint origin() const { return {x, y}; }
    CGPoint center() const { return {midX(), midY()}; }
    CGSize size() const { return {width, height}; }
    bool isEmpty() const { return width <= 0 || height <= 0; }

    /// Grown by `dx` on the left and right and by `dy` above and below; shrunk when negative.
    CGRect outset(CGFloat dx, CGFloat dy) const {
        return {x - dx, y - dy, width + 2 * dx, height + 2 * dy};
    }
    CGRect outset(CGFloat distance) const { return outset(distance, distance); }

    /// `CGRectContainsPoint`: the lower edges belong to the rectangle, the upper ones do not.
    bool contains(CGPoint point) const {
        return point.x >= minX() && point.x < maxX() && point.y >= minY() && point.y < maxY();
    }

    /// True when the two share an area, not only an edge.
    bool intersects(const CGRect& other) const {
        return minX() < other.maxX() && other.minX() < maxX() && minY() < other.maxY() &&
               other.minY() < maxY();
    }

    /// The common area, or an empty rectangle when there is none.
    CGRect intersection(const CGRect& other) const {
        const CGFloat left = std::max(minX(), other.minX());
        const CGFloat top = std::max(minY(), other.minY());
        const CGFloat right = std::min(maxX(), other.maxX());
        const CGFloat bottom = std::min(maxY(), other.maxY());
        return right > left && bottom > top ? CGRect{left, top, right - left, bottom - top}
                                            : CGRect{};
    }

    /// The smallest rectangle that holds both, an empty one included.
    CGRect unite(const CGRect& other) const {
        const CGFloat left = std::min(minX(), other.minX());
        const CGFloat top = std::min(minY(), other.minY());
        return {left, top, std::max(maxX(), other.maxX()) - left,
                std::max(maxY(), other.maxY()) - top};
    }

    friend bool operator==(const CGRect&, const CGRect&) = default;
};

inline constexpr CGRect CGRect::zero{0, 0, 0, 0};

/// The rectangle between two corners in any order, with a non-negative size.
inline CGRect rectBetween(CGPoint a, CGPoint b) {
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::abs(a.x - b.x), std::abs(a.y - b.y)};
}

} // namespace quillon
