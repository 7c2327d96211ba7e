#include "annotation/DirtyCells.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace quillon::test {
namespace {

constexpr CGSize kSize{500, 300};

TEST(DirtyCells, are_none_at_first) {
    const DirtyCells cells(kSize, 1);
    EXPECT_TRUE(cells.rects().empty());
    EXPECT_FALSE(cells.meets({0, 0, kSize.width, kSize.height}));
}

TEST(DirtyCells, hold_whole_cells) {
    DirtyCells cells(kSize, 1);
    cells.add({17, 33, 1, 1});
    EXPECT_EQ(cells.rects(), (std::vector<CGRect>{{16, 32, 8, 8}}));
    EXPECT_TRUE(cells.meets({23, 39, 50, 50}));
    EXPECT_FALSE(cells.meets({24, 32, 50, 50})) << "an edge is no area";
}

TEST(DirtyCells, are_whole_device_pixels_at_every_scale) {
    DirtyCells cells(kSize, 1.25);
    cells.add({0, 0, 1, 1});
    EXPECT_EQ(cells.rects(), (std::vector<CGRect>{{0, 0, 6.4, 6.4}}));
}

TEST(DirtyCells, leave_out_what_lies_outside_and_what_has_no_area) {
    DirtyCells cells(kSize, 1);
    cells.add({-50, -50, 50, 50});
    cells.add({504, 10, 20, 20});
    cells.add({10, 10, 0, 20});
    EXPECT_TRUE(cells.rects().empty());
    cells.add({-50, -50, 51, 51});
    EXPECT_EQ(cells.rects(), (std::vector<CGRect>{{0, 0, 8, 8}}));
}

TEST(DirtyCells, take_those_of_another_grid_and_give_them_up_again) {
    DirtyCells cells(kSize, 1);
    cells.add({0, 0, 24, 8});
    DirtyCells other(kSize, 1);
    other.add({16, 0, 24, 8});
    cells.add(other);
    EXPECT_EQ(cells.rects(), (std::vector<CGRect>{{0, 0, 40, 8}}));
    cells.remove(other);
    EXPECT_EQ(cells.rects(), (std::vector<CGRect>{{0, 0, 16, 8}}));
    EXPECT_FALSE(cells.isEmpty());
    other.keep(cells);
    EXPECT_TRUE(other.isEmpty());
    cells.keep(cells);
    EXPECT_EQ(cells.rects(), (std::vector<CGRect>{{0, 0, 16, 8}}));
    cells.remove(cells);
    EXPECT_TRUE(cells.isEmpty());
}

TEST(DirtyCells, below_each_other_are_one_rectangle) {
    DirtyCells cells(kSize, 1);
    cells.add({16, 0, 32, 100});
    EXPECT_EQ(cells.rects(), (std::vector<CGRect>{{16, 0, 32, 104}}));
}

TEST(DirtyCells, cover_what_lies_in_them_alone) {
    DirtyCells cells(kSize, 1);
    cells.add({16, 16, 100, 100});
    cells.add({16, 116, 100, 100});
    EXPECT_TRUE(cells.cover({20, 20, 50, 190}));
    EXPECT_TRUE(cells.cover({16, 16, 104, 200}));
    EXPECT_FALSE(cells.cover({15, 20, 50, 50}));
    EXPECT_FALSE(cells.cover({100, 20, 30, 10}));
}

TEST(DirtyCells, are_taken_out_square_by_square_from_the_top) {
    DirtyCells cells(kSize, 1);
    cells.add({0, 130, 8, 8});
    cells.add({120, 0, 16, 8});
    cells.add({496, 296, 4, 4});
    const std::vector<CGRect> expected{
        {120, 0, 8, 8}, {128, 0, 8, 8}, {0, 128, 8, 16}, {496, 296, 8, 8}};
    for (const CGRect& rect : expected) {
        EXPECT_TRUE(cells.meets(rect));
        EXPECT_EQ(cells.takeTile(16), std::vector{rect});
        EXPECT_FALSE(cells.meets(rect));
    }
    EXPECT_TRUE(cells.isEmpty());
    EXPECT_TRUE(cells.takeTile(16).empty());
}

TEST(DirtyCells, meet_a_rectangle_exactly_when_one_of_their_rectangles_does) {
    std::mt19937 random(11);
    const auto pick = [&](unsigned count) { return static_cast<CGFloat>(random() % count); };
    const auto rect = [&](unsigned side) {
        return CGRect{pick(2800) - 100, pick(400) - 50, pick(side), pick(side)};
    };
    for (int round = 0; round < 100; ++round) {
        DirtyCells cells({2600, 300}, 1);
        std::vector<CGRect> added;
        for (int number = 0; number < 20; ++number) {
            added.push_back(rect(90));
            cells.add(added.back());
        }
        const auto rects = cells.rects();
        const auto isOver = [&](const CGRect& wanted) {
            return std::ranges::any_of(
                rects, [&](const CGRect& present) { return present.intersects(wanted); });
        };
        for (std::size_t one = 0; one < rects.size(); ++one) {
            for (std::size_t other = 0; other < one; ++other) {
                ASSERT_FALSE(rects[one].intersects(rects[other]));
            }
        }
        for (const CGRect& present : added) {
            const CGRect inside = present.intersection({0, 0, 2600, 300});
            ASSERT_EQ(cells.meets(inside), !inside.isEmpty());
        }
        for (int number = 0; number < 50; ++number) {
            const CGRect wanted = rect(300);
            ASSERT_EQ(cells.meets(wanted), !wanted.isEmpty() && isOver(wanted));
        }
    }
}

} // namespace
} // namespace quillon::test
