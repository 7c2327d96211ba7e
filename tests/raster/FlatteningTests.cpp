#include "raster/Flattening.h"
#include "raster/LineDistance.h"
#include "support/Curves.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace quillon::test {
namespace {

CGFloat distanceTo(const std::vector<LinePiece>& lines, CGPoint place) {
    CGFloat nearest = std::numeric_limits<CGFloat>::max();
    for (const LinePiece& line : lines) {
        nearest = std::min(nearest, distanceOf(line, place));
    }
    return nearest;
}

TEST(Flattening, straight_lines_stay_as_they_are_in_device_pixels) {
    Path path;
    path.move({1, 2});
    path.addLine({3, 4});
    path.addLine({5, 2});
    const std::vector<LinePiece> expected{{{2, 4}, {6, 8}}, {{6, 8}, {10, 4}}};
    EXPECT_EQ(flattened(path, 2), expected);
}

TEST(Flattening, a_place_without_a_line_is_nothing) {
    Path path;
    path.move({1, 2});
    path.move({3, 4});
    EXPECT_TRUE(flattened(path, 1).empty());
    EXPECT_TRUE(flattened(Path(), 1).empty());
}

TEST(Flattening, a_line_of_no_length_stays_a_place) {
    Path path;
    path.move({1, 2});
    path.addLine({1, 2});
    const std::vector<LinePiece> expected{{{1, 2}, {1, 2}}};
    EXPECT_EQ(flattened(path, 1), expected);
}

TEST(Flattening, a_closed_outline_ends_where_it_began) {
    Path path;
    path.addRect({0, 0, 4, 2});
    const auto lines = flattened(path, 1);
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines.back().end, (CGPoint{0, 0}));
}

TEST(Flattening, lines_follow_each_other_without_a_gap) {
    Path path;
    path.move({0, 0});
    path.addCurve({90, 10}, {30, 60}, {70, -50});
    path.addCurve({95, 70}, {110, 70}, {40, 40});
    const auto lines = flattened(path, 1.25);
    for (std::size_t index = 1; index < lines.size(); ++index) {
        EXPECT_EQ(lines[index].start, lines[index - 1].end);
    }
    EXPECT_EQ(lines.back().end, (CGPoint{118.75, 87.5}));
}

TEST(Flattening, a_curve_is_left_by_less_than_a_tenth_of_a_pixel) {
    const CGPoint curves[][4] = {
        {{0, 0}, {3, 1}, {7, -1}, {10, 0}},
        {{0, 0}, {300, 900}, {-200, 900}, {100, 0}},
        {{0, 0}, {2000, 0}, {2000, 1000}, {0, 1000}},
        {{5, 5}, {5, 5}, {9, 5}, {9, 5}},
        {{5, 5}, {5, 5}, {5, 5}, {5, 5}},
    };
    for (const auto& [a, b, c, d] : curves) {
        Path path;
        path.move(a);
        path.addCurve(d, b, c);
        for (const CGFloat scale : {1.0, 2.0}) {
            const auto lines = flattened(path, scale);
            for (int step = 0; step <= 500; ++step) {
                const CGPoint place = onCurve(a, b, c, d, step / 500.0) * scale;
                ASSERT_LT(distanceTo(lines, place), 0.1);
            }
        }
    }
}

TEST(Flattening, a_curve_has_the_same_lines_alone_and_behind_another) {
    Path both;
    both.move({0, 0});
    both.addCurve({20, 7}, {5, 9}, {15, -4});
    both.addCurve({40, 3}, {25, 18}, {33, 1});
    Path second;
    second.move({20, 7});
    second.addCurve({40, 3}, {25, 18}, {33, 1});
    const auto all = flattened(both, 1.25);
    const auto alone = flattened(second, 1.25);
    ASSERT_GT(all.size(), alone.size());
    EXPECT_TRUE(std::equal(alone.rbegin(), alone.rend(), all.rbegin()));
}

TEST(Flattening, what_is_no_number_or_beyond_all_screens_is_left_out) {
    constexpr CGFloat infinite = std::numeric_limits<CGFloat>::infinity();
    constexpr CGFloat none = std::numeric_limits<CGFloat>::quiet_NaN();
    Path path;
    path.move({0, 0});
    path.addLine({infinite, 0});
    path.addLine({5, 5});
    path.addCurve({9, 9}, {none, 6}, {7, 7});
    path.addLine({2e6, 10});
    path.move({9, 9});
    path.addLine({10, 10});
    const auto lines = flattened(path, 1);
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.back(), (LinePiece{{9, 9}, {10, 10}}));
    for (const auto& [start, end] : lines) {
        EXPECT_TRUE(std::isfinite(start.x) && std::isfinite(end.x));
    }
}

TEST(Flattening, a_curve_without_measure_comes_to_an_end) {
    Path path;
    path.move({0, 0});
    path.addCurve({1e30, 1e30}, {-1e300, 1e300}, {1e300, -1e300});
    EXPECT_LE(flattened(path, 1).size(), 256U);
}

} // namespace
} // namespace quillon::test
