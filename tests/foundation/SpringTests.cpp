#include "foundation/Spring.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quillon::test {
namespace {

TEST(Spring, it_rests_where_it_was_put) {
    const Spring spring(0.2, 0.6, 1);
    EXPECT_EQ(spring.valueAt(0), 1);
    EXPECT_TRUE(spring.isAtRest(0));
}

TEST(Spring, it_starts_where_it_was_and_comes_to_rest_at_its_target) {
    Spring spring(0.2, 0.6, 1);
    spring.setTarget(0.95, 10);
    EXPECT_DOUBLE_EQ(spring.valueAt(10), 1);
    EXPECT_FALSE(spring.isAtRest(10));
    EXPECT_NEAR(spring.valueAt(11), 0.95, 1e-6);
    EXPECT_TRUE(spring.isAtRest(11));
}

TEST(Spring, it_overshoots_by_what_the_damping_lets_through) {
    Spring spring(1, 0.6, 0);
    spring.setTarget(1, 0);
    double highest = 0;
    for (double time = 0; time < 2; time += 0.001) {
        highest = std::max(highest, spring.valueAt(time));
    }
    // The first overshoot of a second-order system is exp(-pi d / sqrt(1 - d²)).
    EXPECT_NEAR(highest - 1, std::exp(-3.14159265358979 * 0.6 / 0.8), 1e-4);
}

TEST(Spring, a_new_target_keeps_the_place_and_the_speed) {
    Spring spring(0.2, 0.6, 1);
    spring.setTarget(0.95, 0);
    const double place = spring.valueAt(0.05);
    const double speed = (spring.valueAt(0.05) - spring.valueAt(0.0499)) / 0.0001;
    spring.setTarget(1, 0.05);
    EXPECT_NEAR(spring.valueAt(0.05), place, 1e-12);
    EXPECT_NEAR((spring.valueAt(0.0501) - spring.valueAt(0.05)) / 0.0001, speed, 0.02);
    EXPECT_NEAR(spring.valueAt(1), 1, 1e-6);
}

} // namespace
} // namespace quillon::test
