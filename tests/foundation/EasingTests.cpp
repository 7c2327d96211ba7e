#include "foundation/Easing.h"

#include <gtest/gtest.h>

namespace quillon::test {

TEST(TimingCurve, it_starts_at_0_ends_at_1_and_stays_there) {
    for (const auto& curve : {TimingCurve::easeIn, TimingCurve::easeOut, TimingCurve::easeInOut}) {
        EXPECT_EQ(curve.progressAt(-1), 0);
        EXPECT_EQ(curve.progressAt(0), 0);
        EXPECT_EQ(curve.progressAt(1), 1);
        EXPECT_EQ(curve.progressAt(2), 1);
    }
}

TEST(TimingCurve, it_never_goes_back) {
    for (const auto& curve : {TimingCurve::easeIn, TimingCurve::easeOut, TimingCurve::easeInOut}) {
        double last = 0;
        for (int step = 1; step <= 1000; ++step) {
            const double progress = curve.progressAt(step / 1000.0);
            EXPECT_GE(progress, last) << step;
            last = progress;
        }
    }
}

TEST(TimingCurve, easing_in_lags_and_easing_out_leads_and_the_two_mirror_each_other) {
    EXPECT_LT(TimingCurve::easeIn.progressAt(0.3), 0.3);
    EXPECT_GT(TimingCurve::easeOut.progressAt(0.3), 0.3);
    EXPECT_NEAR(TimingCurve::easeIn.progressAt(0.3), 1 - TimingCurve::easeOut.progressAt(0.7),
                1e-9);
}

TEST(TimingCurve, easing_on_both_sides_is_half_way_at_half_time) {
    EXPECT_NEAR(TimingCurve::easeInOut.progressAt(0.5), 0.5, 1e-9);
    EXPECT_NEAR(TimingCurve::easeInOut.progressAt(0.25), 0.12916, 1e-4);
}

TEST(TimingCurve, control_points_on_the_diagonal_give_steady_progress) {
    const TimingCurve steady(1.0 / 3, 1.0 / 3, 2.0 / 3, 2.0 / 3);
    for (const double time : {0.1, 0.42, 0.9}) {
        EXPECT_NEAR(steady.progressAt(time), time, 1e-9);
    }
}

TEST(TimingCurve, the_linear_one_is_the_time_itself) {
    for (int step = 0; step <= 100; ++step) {
        EXPECT_NEAR(TimingCurve::linear.progressAt(step / 100.0), step / 100.0, 1e-9);
    }
}

} // namespace quillon::test
