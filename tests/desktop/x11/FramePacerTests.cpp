#include "desktop/x11/FramePacer.h"

#include <gtest/gtest.h>

namespace quillon::test {

using desktop::FramePacer;

TEST(FramePacer, after_a_rest_a_frame_is_due_at_once) {
    FramePacer pacer(0.25);

    EXPECT_EQ(pacer.book(100), 0);
    EXPECT_EQ(pacer.book(200), 0);
}

TEST(FramePacer, frames_that_are_wanted_sooner_wait_for_the_interval) {
    FramePacer pacer(0.25);
    pacer.book(100);

    EXPECT_EQ(pacer.book(100), 0.25);
    EXPECT_EQ(pacer.book(100.25), 0.25);
}

TEST(FramePacer, a_frame_that_came_late_does_not_put_off_the_next_one) {
    FramePacer pacer(0.25);
    pacer.book(100);
    pacer.book(100.125);

    // It was due at 100.25.
    EXPECT_EQ(pacer.book(100.375), 0.125);
}

TEST(FramePacer, a_long_delay_is_not_made_up_for) {
    FramePacer pacer(0.25);
    pacer.book(100);
    pacer.book(100);

    EXPECT_EQ(pacer.book(103), 0);
    EXPECT_EQ(pacer.book(103), 0.25);
}

} // namespace quillon::test
