#include "foundation/Geometry.h"

#include <gtest/gtest.h>

namespace quillon::test {

TEST(CGPoint, arithmetic_goes_component_by_component) {
    EXPECT_EQ((CGPoint{1, 2} + CGPoint{10, 20}), (CGPoint{11, 22}));
    EXPECT_EQ((CGPoint{1, 2} - CGPoint{10, 20}), (CGPoint{-9, -18}));
    EXPECT_EQ((CGPoint{1, 2} * 3), (CGPoint{3, 6}));
    EXPECT_EQ((CGPoint{3, 6} / 3), (CGPoint{1, 2}));
}

TEST(CGPoint, the_distance_is_the_straight_line) {
    EXPECT_EQ(distance({1, 2}, {4, 6}), 5);
    EXPECT_EQ(distance({4, 6}, {1, 2}), 5);
    EXPECT_EQ(distance({1, 2}, {1, 2}), 0);
}

TEST(CGRect, its_edges_and_middles_follow_from_origin_and_size) {
    const CGRect rect{10, 20, 30, 40};
    EXPECT_EQ(rect.minX(), 10);
    EXPECT_EQ(rect.midX(), 25);
    EXPECT_EQ(rect.maxX(), 40);
    EXPECT_EQ(rect.minY(), 20);
    EXPECT_EQ(rect.midY(), 40);
    EXPECT_EQ(rect.maxY(), 60);
    EXPECT_EQ(rect.origin(), (CGPoint{10, 20}));
    EXPECT_EQ(rect.center(), (CGPoint{25, 40}));
    EXPECT_EQ(rect.size(), (CGSize{30, 40}));
}

TEST(CGRect, it_keeps_a_negative_size_and_counts_as_empty) {
    const CGRect rect{10, 20, -30, 40};
    EXPECT_EQ(rect.width, -30);
    EXPECT_TRUE(rect.isEmpty());
    EXPECT_TRUE(CGRect::zero.isEmpty());
    EXPECT_TRUE((CGRect{0, 0, 5, 0}).isEmpty());
    EXPECT_FALSE((CGRect{0, 0, 5, 1e-9}).isEmpty());
}

TEST(CGRect, the_lower_edges_belong_to_it_and_the_upper_ones_do_not) {
    const CGRect rect{0, 0, 10, 20};
    EXPECT_TRUE(rect.contains({0, 0}));
    EXPECT_TRUE(rect.contains({9.999, 19.999}));
    EXPECT_FALSE(rect.contains({10, 5}));
    EXPECT_FALSE(rect.contains({5, 20}));
    EXPECT_FALSE(rect.contains({-0.001, 5}));
}

TEST(CGRect, two_that_share_only_an_edge_do_not_intersect) {
    const CGRect rect{0, 0, 10, 10};
    EXPECT_TRUE(rect.intersects({9, 9, 10, 10}));
    EXPECT_TRUE(rect.intersects({2, 2, 1, 1}));
    EXPECT_FALSE(rect.intersects({10, 0, 10, 10}));
    EXPECT_FALSE(rect.intersects({0, -10, 10, 10}));
}

TEST(CGRect, the_intersection_is_the_common_area_or_empty) {
    const CGRect rect{0, 0, 10, 10};
    EXPECT_EQ(rect.intersection({5, -5, 10, 10}), (CGRect{5, 0, 5, 5}));
    EXPECT_EQ(rect.intersection({20, 20, 5, 5}), CGRect::zero);
    EXPECT_EQ(rect.intersection({10, 0, 5, 5}), CGRect::zero);
}

TEST(CGRect, the_union_is_the_smallest_rectangle_over_both) {
    EXPECT_EQ((CGRect{0, 0, 10, 10}).unite({20, -5, 5, 5}), (CGRect{0, -5, 25, 15}));
    EXPECT_EQ((CGRect{0, 0, 10, 10}).unite({50, 50, 0, 0}), (CGRect{0, 0, 50, 50}));
}

TEST(CGRect, an_outset_grows_on_all_sides_and_a_negative_one_shrinks) {
    EXPECT_EQ((CGRect{10, 10, 20, 20}).outset(2, 3), (CGRect{8, 7, 24, 26}));
    EXPECT_EQ((CGRect{10, 10, 20, 20}).outset(-5), (CGRect{15, 15, 10, 10}));
}

TEST(CGRect, two_corners_in_any_order_make_the_same_rectangle) {
    const CGRect expected{1, 2, 9, 18};
    EXPECT_EQ(rectBetween({1, 2}, {10, 20}), expected);
    EXPECT_EQ(rectBetween({10, 20}, {1, 2}), expected);
    EXPECT_EQ(rectBetween({1, 20}, {10, 2}), expected);
    EXPECT_EQ(rectBetween({3, 4}, {3, 4}), (CGRect{3, 4, 0, 0}));
}

} // namespace quillon::test
