#include "desktop/x11/FramePacer.h"

#include <gtest/gtest.h>

namespace quillon::test {

using desktop::FrameHaste;
using desktop::FramePacer;

TEST(FramePacer, after_a_rest_a_frame_is_due_at_once_in_haste_or_not) {
    FramePacer pacer(0.25);

    EXPECT_EQ(pacer.due(100, FrameHaste::now), 100);
    pacer.spend(100);
    EXPECT_EQ(pacer.due(200, FrameHaste::later), 200);
}

TEST(FramePacer, a_frame_that_is_wanted_sooner_waits_for_the_next_slot) {
    FramePacer pacer(0.25);
    pacer.spend(100);

    EXPECT_EQ(pacer.due(100, FrameHaste::now), 100.25);
    EXPECT_EQ(pacer.due(100.125, FrameHaste::now), 100.25);
    pacer.spend(100.25);
    EXPECT_EQ(pacer.due(100.25, FrameHaste::now), 100.5);
}

TEST(FramePacer, in_a_slot_that_has_room_a_frame_is_due_at_once_and_the_next_slot_stays) {
    FramePacer pacer(0.25);
    pacer.spend(100);

    EXPECT_EQ(pacer.due(100.375, FrameHaste::now), 100.375);
    pacer.spend(100.375);
    EXPECT_EQ(pacer.due(100.375, FrameHaste::now), 100.5);
}

TEST(FramePacer, a_frame_that_came_late_in_its_slot_does_not_put_off_the_next_one) {
    FramePacer pacer(0.25);
    pacer.spend(100);
    pacer.spend(100.4375);

    EXPECT_EQ(pacer.due(100.4375, FrameHaste::now), 100.5);
}

TEST(FramePacer, changes_at_its_own_pace_that_come_early_or_late_have_a_frame_each) {
    FramePacer pacer(0.25);
    double shown = 0;
    for (int change = 0; change < 100; ++change) {
        const double unrest = change % 3 == 0 ? -0.0625 : 0.0625;
        const double comes = 100 + change * 0.25 + unrest;
        EXPECT_LE(shown, comes) << "the frame of the change before shows this one as well";
        shown = pacer.due(comes, FrameHaste::now);
        EXPECT_LE(shown, comes + 0.125);
        pacer.spend(shown);
    }
}

TEST(FramePacer, a_frame_without_haste_leaves_half_of_its_slot_to_another) {
    FramePacer pacer(0.25);
    pacer.spend(100);

    EXPECT_EQ(pacer.due(100.0625, FrameHaste::later), 100.375);
    EXPECT_EQ(pacer.due(100.4375, FrameHaste::later), 100.4375);
}

TEST(FramePacer, frames_without_haste_alone_keep_the_pace) {
    FramePacer pacer(0.25);
    pacer.spend(100);
    pacer.spend(100.375);

    EXPECT_EQ(pacer.due(100.375, FrameHaste::later), 100.625);
}

TEST(FramePacer, a_long_delay_is_not_made_up_for) {
    FramePacer pacer(0.25);
    pacer.spend(100);

    EXPECT_EQ(pacer.due(103, FrameHaste::now), 103);
    pacer.spend(103);
    EXPECT_EQ(pacer.due(103, FrameHaste::now), 103.25);
}

} // namespace quillon::test
