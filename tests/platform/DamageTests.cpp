#include "platform/Damage.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace quillon::test {

namespace {

bool isCovered(const Damage& damage, CGPoint point) {
    for (const auto& rect : damage.rects()) {
        if (rect.contains(point)) {
            return true;
        }
    }
    return false;
}

/// Looks at a grid of points just inside of `rect`.
void expectCovered(const Damage& damage, const CGRect& rect) {
    constexpr int kSteps = 8;
    for (int row = 0; row <= kSteps; ++row) {
        for (int column = 0; column <= kSteps; ++column) {
            const CGPoint point{rect.x + rect.width * (0.001 + 0.998 * column / kSteps),
                                rect.y + rect.height * (0.001 + 0.998 * row / kSteps)};
            ASSERT_TRUE(isCovered(damage, point)) << point.x << ' ' << point.y;
        }
    }
}

} // namespace

TEST(Damage, there_is_none_at_first) {
    const Damage damage;
    EXPECT_TRUE(damage.isEmpty());
    EXPECT_EQ(damage.bounds(), CGRect::zero);
    EXPECT_FALSE(damage.intersects({-1e6, -1e6, 2e6, 2e6}));
}

TEST(Damage, an_empty_rectangle_adds_nothing) {
    Damage damage;
    damage.add(CGRect{10, 10, 0, 5});
    damage.add(CGRect{10, 10, -5, 5});
    EXPECT_TRUE(damage.isEmpty());
}

TEST(Damage, rectangles_far_apart_stay_apart) {
    Damage damage;
    damage.add(CGRect{0, 0, 10, 10});
    damage.add(CGRect{1000, 1000, 10, 10});
    EXPECT_EQ(damage.rects(), (std::vector<CGRect>{{0, 0, 10, 10}, {1000, 1000, 10, 10}}));
    EXPECT_TRUE(damage.intersects({5, 5, 1, 1}));
    EXPECT_FALSE(damage.intersects({500, 500, 10, 10}));
    EXPECT_EQ(damage.bounds(), (CGRect{0, 0, 1010, 1010}));
}

TEST(Damage, the_tail_of_a_stroke_joins_what_came_before) {
    Damage damage;
    damage.add(CGRect{0, 0, 10, 10});
    damage.add(CGRect{5, 0, 10, 10});
    EXPECT_EQ(damage.rects(), (std::vector<CGRect>{{0, 0, 15, 10}}));
}

TEST(Damage, it_is_never_less_than_what_was_added_and_the_list_stays_short) {
    std::mt19937 generator(7);
    std::uniform_real_distribution<double> place(-500, 2000);
    std::uniform_real_distribution<double> size(0.25, 300);
    for (int round = 0; round < 20; ++round) {
        Damage damage;
        std::vector<CGRect> added;
        for (int count = 0; count < 200; ++count) {
            added.push_back({place(generator), place(generator), size(generator), size(generator)});
            damage.add(added.back());
            ASSERT_LE(damage.rects().size(), Damage::maximumRectCount);
        }
        for (const auto& rect : added) {
            expectCovered(damage, rect);
            ASSERT_EQ(damage.bounds().unite(rect), damage.bounds());
        }
    }
}

TEST(Damage, one_is_added_to_another_whole) {
    Damage first;
    Damage second;
    first.add(CGRect{0, 0, 10, 10});
    for (int count = 0; count < 60; ++count) {
        second.add(CGRect{count * 100.0, 500, 10, 10});
    }
    first.add(second);
    EXPECT_LE(first.rects().size(), Damage::maximumRectCount);
    expectCovered(first, {0, 0, 10, 10});
    for (int count = 0; count < 60; ++count) {
        expectCovered(first, {count * 100.0, 500, 10, 10});
    }
}

TEST(Damage, it_is_gone_after_it_was_cleared) {
    Damage damage;
    damage.add(CGRect{0, 0, 10, 10});
    damage.clear();
    EXPECT_TRUE(damage.isEmpty());
}

} // namespace quillon::test
