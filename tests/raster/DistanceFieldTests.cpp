#include "raster/DistanceField.h"
#include "raster/LineDistance.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace quillon::test {
namespace {

/// What a field says of a pixel of the view; endless where nothing was looked at.
double squareAt(const DistanceField& field, int x, int y) {
    const int row = y - field.area().top;
    const int column = x - field.area().left;
    const auto [first, last] = field.span(row);
    const bool isLookedAt = column >= first && column < last;
    return isLookedAt ? static_cast<double>(field.squares(row)[column]) : HUGE_VAL;
}

class RandomLines {
public:
    LinePiece next() {
        const CGPoint start = place();
        switch (m_random() % 4) {
        case 0:
            return {start, start};
        case 1:
            return {start, {start.x, place().y}};
        case 2:
            return {start, {place().x, start.y}};
        default:
            return {start, place()};
        }
    }

private:
    double coordinate() { return static_cast<double>(m_random() % 12000) / 100 - 20; }
    CGPoint place() { return {coordinate(), coordinate()}; }

    std::mt19937 m_random{3};
};

TEST(DistanceField, every_pixel_within_reach_has_its_distance_from_the_nearest_line) {
    RandomLines random;
    for (int round = 0; round < 60; ++round) {
        const PixelRect area{7 + round % 9, 3, 50 + round % 21, 61};
        const std::vector<LinePiece> lines{random.next(), random.next(), random.next()};
        const float reach = 0.5F + static_cast<float>(round % 12);
        DistanceField field(area, {0, reach});
        for (const LinePiece& line : lines) {
            field.add(line);
        }
        for (int y = area.top; y < area.bottom; ++y) {
            for (int x = area.left; x < area.right; ++x) {
                double nearest = HUGE_VAL;
                for (const LinePiece& line : lines) {
                    nearest = std::min(nearest, distanceOf(line, {x + 0.5, y + 0.5}));
                }
                const double known = std::sqrt(squareAt(field, x, y));
                if (nearest < static_cast<double>(reach) - 0.001) {
                    ASSERT_NEAR(known, nearest, 0.001);
                } else {
                    ASSERT_GE(known, nearest - 0.001);
                }
            }
        }
    }
}

TEST(DistanceField, a_pixel_has_the_same_value_whatever_the_area_and_the_order_of_the_lines) {
    RandomLines random;
    for (int round = 0; round < 40; ++round) {
        const LinePiece one = random.next();
        const LinePiece other = random.next();
        DistanceField wide({0, 0, 64, 64}, {0, 5});
        wide.add(one);
        wide.add(other);
        DistanceField narrow({13, 21, 40, 60}, {0, 5});
        narrow.add(other);
        narrow.add(one);
        for (int y = 21; y < 60; ++y) {
            for (int x = 13; x < 40; ++x) {
                if (squareAt(narrow, x, y) < 24.9) {
                    ASSERT_EQ(squareAt(narrow, x, y), squareAt(wide, x, y));
                }
            }
        }
    }
}

TEST(DistanceField,
     what_lies_in_the_core_of_a_line_may_be_taken_for_nothing_and_the_rest_is_as_it_is) {
    RandomLines random;
    for (int round = 0; round < 60; ++round) {
        const LinePiece one = random.next();
        const LinePiece other = random.next();
        const PixelRect area{round % 9, 5, 64, 60};
        DistanceField exact(area, {0, 13});
        DistanceField cored(area, {12, 13});
        for (const LinePiece& line : {one, other}) {
            exact.add(line);
            cored.add(line);
        }
        for (int y = area.top; y < area.bottom; ++y) {
            for (int x = area.left; x < area.right; ++x) {
                const double square = squareAt(exact, x, y);
                if (square > 144) {
                    ASSERT_EQ(squareAt(cored, x, y), square);
                } else {
                    ASSERT_LE(squareAt(cored, x, y), square);
                }
            }
        }
    }
}

TEST(DistanceField, with_no_line_in_reach_nothing_is_looked_at) {
    DistanceField field({0, 0, 10, 10}, {0, 5});
    field.add({{-50, -50}, {-40, 80}});
    field.add({{-50, 30}, {50, 30}});
    for (int row = 0; row < 10; ++row) {
        EXPECT_GE(field.span(row).first, field.span(row).last);
    }
}

TEST(DistanceField, a_line_far_longer_than_a_screen_is_no_harm) {
    DistanceField field({0, 0, 64, 64}, {0, 3});
    field.add({{-4e4, 32}, {4e4, 32}});
    EXPECT_NEAR(squareAt(field, 10, 33), 2.25, 0.1);
    field.add({{1e6, -1e6}, {-1e6, 1e6}});
    field.add({{0, 1e6}, {1e6, 1e6}});
    EXPECT_NEAR(squareAt(field, 10, 33), 2.25, 0.1);
}

} // namespace
} // namespace quillon::test
