#include "foundation/DragGesture.h"

#include <gtest/gtest.h>

namespace quillon::test {

TEST(DragGesture, without_a_minimum_distance_the_press_itself_is_the_first_change) {
    DragGesture drag(0);
    const auto first = drag.pressed({10, 20});
    ASSERT_TRUE(first);
    EXPECT_EQ(first->location, (CGPoint{10, 20}));
    EXPECT_EQ(first->translation, CGSize::zero);
}

TEST(DragGesture, a_change_has_its_place_and_the_way_from_the_press) {
    DragGesture drag(0);
    drag.pressed({10, 20});
    const auto change = drag.moved({13, 16});
    ASSERT_TRUE(change);
    EXPECT_EQ(change->location, (CGPoint{13, 16}));
    EXPECT_EQ(change->translation, (CGSize{3, -4}));
}

TEST(DragGesture, nothing_is_reported_before_the_pointer_has_gone_the_minimum_distance) {
    DragGesture drag(5);
    EXPECT_FALSE(drag.pressed({0, 0}));
    EXPECT_FALSE(drag.moved({3, 3.9}));
    EXPECT_TRUE(drag.moved({3, 4}));
}

TEST(DragGesture, once_begun_it_reports_moves_near_the_press_too) {
    DragGesture drag(5);
    drag.pressed({0, 0});
    drag.moved({10, 0});
    EXPECT_TRUE(drag.moved({1, 0}));
}

TEST(DragGesture, the_usual_minimum_is_ten_points) {
    DragGesture drag;
    drag.pressed({0, 0});
    EXPECT_FALSE(drag.moved({9.99, 0}));
    EXPECT_TRUE(drag.moved({10, 0}));
}

TEST(DragGesture, a_release_ends_a_drag_where_it_happens) {
    DragGesture drag(0);
    drag.pressed({1, 1});
    const auto end = drag.released({4, 5});
    ASSERT_TRUE(end);
    EXPECT_EQ(end->location, (CGPoint{4, 5}));
    EXPECT_EQ(end->translation, (CGSize{3, 4}));
    EXPECT_FALSE(drag.isTracking());
}

TEST(DragGesture, a_drag_that_never_began_has_no_end) {
    DragGesture drag(5);
    drag.pressed({0, 0});
    EXPECT_FALSE(drag.released({1, 0}));
    EXPECT_FALSE(drag.isTracking());
}

TEST(DragGesture, moves_and_a_release_without_a_press_are_nothing) {
    DragGesture drag(0);
    EXPECT_FALSE(drag.moved({1, 1}));
    EXPECT_FALSE(drag.released({1, 1}));
}

TEST(DragGesture, the_next_drag_starts_from_nothing) {
    DragGesture drag(5);
    drag.pressed({0, 0});
    drag.moved({10, 0});
    drag.released({10, 0});
    EXPECT_FALSE(drag.pressed({10, 0}));
    EXPECT_FALSE(drag.moved({12, 0}));
}

} // namespace quillon::test
