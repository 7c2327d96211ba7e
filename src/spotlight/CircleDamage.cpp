#include "spotlight/CircleDamage.h"

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

/// Into how many bands the height is cut: more of them cover less, and each has its price.
constexpr int kBandCount = 12;
/// For the softened edge, and for the curves with which a circle is drawn.
constexpr CGFloat kMargin = 1;

/// A part of a line from left to right; empty when it ends before it begins.
struct Span {
    CGFloat left;
    CGFloat right;
};

CGFloat halfChord(const Circle& circle, CGFloat y) {
    const CGFloat height = y - circle.center.y;
    return std::sqrt(std::max(0.0, circle.radius * circle.radius - height * height));
}

/// What of the band lies inside of the circle anywhere.
Span widest(const Circle& circle, CGFloat top, CGFloat bottom) {
    const CGFloat half = halfChord(circle, std::clamp(circle.center.y, top, bottom));
    return {circle.center.x - half, circle.center.x + half};
}

/// What of the band lies inside of the circle everywhere; empty where the circle ends in it.
Span narrowest(const Circle& circle, CGFloat top, CGFloat bottom) {
    const CGFloat half = std::min(halfChord(circle, top), halfChord(circle, bottom));
    return {circle.center.x - half, circle.center.x + half};
}

bool isNear(const Circle& a, const Circle& b) {
    return distance(a.center, b.center) + std::abs(a.radius - b.radius) <
           std::min(a.radius, b.radius);
}

} // namespace

Damage differenceOfCircles(const Circle& a, const Circle& b) {
    Damage damage;
    if (!isNear(a, b)) {
        damage.add(a.bounds());
        damage.add(b.bounds());
        return damage;
    }
    const CGRect whole = a.bounds().unite(b.bounds()).outset(kMargin);
    const CGFloat height = whole.height / kBandCount;
    for (int band = 0; band < kBandCount; ++band) {
        const CGFloat top = whole.minY() + band * height;
        const CGFloat bottom = top + height;
        const Span outerA = widest(a, top, bottom);
        const Span outerB = widest(b, top, bottom);
        const Span outer{std::min(outerA.left, outerB.left) - kMargin,
                         std::max(outerA.right, outerB.right) + kMargin};
        const Span innerA = narrowest(a, top, bottom);
        const Span innerB = narrowest(b, top, bottom);
        const Span inner{std::max(innerA.left, innerB.left) + kMargin,
                         std::min(innerA.right, innerB.right) - kMargin};
        if (inner.right <= inner.left) {
            damage.add({outer.left, top, outer.right - outer.left, height});
        } else {
            damage.add({outer.left, top, inner.left - outer.left, height});
            damage.add({inner.right, top, outer.right - inner.right, height});
        }
    }
    return damage;
}

} // namespace quillon
