#include "foundation/AnimatedValue.h"

#include <gtest/gtest.h>

namespace quillon::test {

TEST(AnimatedValue, it_rests_at_its_first_value) {
    const AnimatedValue value(0.1);
    EXPECT_EQ(value.at(5), 0.1);
    EXPECT_FALSE(value.isRunning(5));
}

TEST(AnimatedValue, it_follows_the_curve_and_stays_at_its_end) {
    AnimatedValue value(10);
    value.animate(20, TimingCurve::linear, 0.4, 100);
    EXPECT_NEAR(value.at(100), 10, 1e-9);
    EXPECT_NEAR(value.at(100.1), 12.5, 1e-9);
    EXPECT_TRUE(value.isRunning(100.39));
    EXPECT_EQ(value.at(100.5), 20);
    EXPECT_FALSE(value.isRunning(100.5));
}

TEST(AnimatedValue, turned_round_on_its_way_it_goes_on_from_where_it_is) {
    AnimatedValue value(0);
    value.animate(1, TimingCurve::linear, 1, 0);
    value.animate(0, TimingCurve::easeOut, 1, 0.5);
    EXPECT_NEAR(value.at(0.5), 0.5, 1e-9);
    EXPECT_NEAR(value.at(1), 0.5 * (1 - TimingCurve::easeOut.progressAt(0.5)), 1e-9);
    EXPECT_EQ(value.at(1.5), 0);
}

TEST(AnimatedValue, without_a_duration_it_is_there_at_once) {
    AnimatedValue value(0);
    value.animate(1, TimingCurve::easeOut, 0, 7);
    EXPECT_EQ(value.at(7), 1);
    EXPECT_FALSE(value.isRunning(7));
}

} // namespace quillon::test
