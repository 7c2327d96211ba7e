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
    CGFloat left = 0;
    CGFloat right = 0;
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

/// The parts of a band that lie in `outer` and not in `inner`.
void addBand(Damage& damage, const Span& outer, const Span& inner, CGFloat top, CGFloat height) {
    if (inner.right <= inner.left) {
        damage.add({outer.left, top, outer.right - outer.left, height});
    } else {
        damage.add({outer.left, top, inner.left - outer.left, height});
        damage.add({inner.right, top, outer.right - inner.right, height});
    }
}

/// Cuts `area` into bands and calls `body` with the upper edge and the height of each.
template <typename Body>
void forEachBand(const CGRect& area, Body&& body) {
    const CGFloat height = area.height / kBandCount;
    for (int band = 0; band < kBandCount; ++band) {
        body(area.minY() + band * height, height);
    }
}

void addWhole(Damage& damage, const Circle& circle) {
    if (circle.radius <= 0) {
        return;
    }
    forEachBand(circle.bounds().outset(kMargin), [&](CGFloat top, CGFloat height) {
        const Span outer = widest(circle, top, top + height);
        addBand(damage, {outer.left - kMargin, outer.right + kMargin}, {}, top, height);
    });
}

} // namespace

Damage differenceOfCircles(const Circle& a, const Circle& b) {
    Damage damage;
    if (!isNear(a, b)) {
        addWhole(damage, a);
        addWhole(damage, b);
        return damage;
    }
    forEachBand(a.bounds().unite(b.bounds()).outset(kMargin), [&](CGFloat top, CGFloat height) {
        const CGFloat bottom = top + height;
        const Span outerA = widest(a, top, bottom);
        const Span outerB = widest(b, top, bottom);
        const Span innerA = narrowest(a, top, bottom);
        const Span innerB = narrowest(b, top, bottom);
        addBand(damage,
                {std::min(outerA.left, outerB.left) - kMargin,
                 std::max(outerA.right, outerB.right) + kMargin},
                {std::max(innerA.left, innerB.left) + kMargin,
                 std::min(innerA.right, innerB.right) - kMargin},
                top, height);
    });
    return damage;
}

} // namespace quillon
