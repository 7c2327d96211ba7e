#include "spotlight/CircleDamage.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quillon::test {
namespace {

bool isInside(const Circle& circle, CGPoint place) {
    return distance(circle.center, place) < circle.radius;
}

/// Looks at a grid over both circles: whatever changes must be covered.
void expectCovered(const Circle& a, const Circle& b) {
    const Damage damage = differenceOfCircles(a, b);
    const CGRect area = a.bounds().unite(b.bounds()).outset(2);
    for (CGFloat y = area.minY(); y < area.maxY(); y += 0.5) {
        for (CGFloat x = area.minX(); x < area.maxX(); x += 0.5) {
            const CGPoint place{x, y};
            const bool isDifferent = isInside(a, place) != isInside(b, place);
            if (isDifferent) {
                ASSERT_TRUE(damage.intersects({x - 1e-6, y - 1e-6, 2e-6, 2e-6})) << x << ", " << y;
            }
        }
    }
}

CGFloat areaOf(const Damage& damage) {
    CGFloat area = 0;
    for (const CGRect& rect : damage.rects()) {
        area += rect.width * rect.height;
    }
    return area;
}

TEST(CircleDamage, whatever_differs_between_two_circles_is_covered) {
    const Circle circle{{100, 100}, 60};
    for (const CGFloat length : {0.3, 1.0, 4.0, 17.0, 45.0, 59.0, 61.0, 130.0}) {
        for (int direction = 0; direction < 12; ++direction) {
            const double angle = direction * 0.5236;
            expectCovered(circle,
                          {{100 + length * std::cos(angle), 100 + length * std::sin(angle)}, 60});
        }
    }
}

TEST(CircleDamage, a_circle_that_grows_or_shrinks_is_covered) {
    const Circle circle{{100, 100}, 60};
    for (const CGFloat radius : {0.0, 2.0, 30.0, 55.0, 61.0, 90.0, 200.0}) {
        expectCovered(circle, {{100, 100}, radius});
        expectCovered({{103, 98}, radius}, circle);
    }
}

TEST(CircleDamage, a_small_step_costs_a_fraction_of_the_two_squares) {
    const Circle circle{{500, 500}, 150};
    const CGFloat square = 300 * 300;
    EXPECT_LT(areaOf(differenceOfCircles(circle, {{505, 503}, 150})), square / 3);
    EXPECT_LT(areaOf(differenceOfCircles(circle, {{900, 503}, 150})), 2 * square);
}

TEST(CircleDamage, it_stays_within_the_squares_but_for_a_point) {
    const Circle a{{500, 500}, 150};
    const Circle b{{520, 490}, 150};
    const CGRect allowed = a.bounds().unite(b.bounds()).outset(1);
    EXPECT_EQ(differenceOfCircles(a, b).bounds().unite(allowed), allowed);
}

TEST(CircleDamage, circles_of_no_size_cost_nothing) {
    EXPECT_TRUE(differenceOfCircles({{1, 1}, 0}, {{5, 5}, 0}).isEmpty());
}

} // namespace
} // namespace quillon::test
