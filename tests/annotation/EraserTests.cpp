#include "annotation/Eraser.h"
#include "annotation/TestStrokes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace quillon::test {
namespace {

DrawingStroke eraser(const std::vector<CGPoint>& points, CGFloat width = 20) {
    return freehand(points, DrawingTool::eraser, width);
}

/// What is left of one stroke after a pass of the eraser.
std::optional<DrawingStroke> erased(const DrawingStroke& stroke, const DrawingStroke& pass) {
    StrokeList strokes{stroke};
    processEraser(pass, strokes);
    return strokes.empty() ? std::nullopt : std::optional(strokes[0]);
}

TEST(Eraser, the_distance_to_a_segment_is_that_to_its_nearest_place) {
    EXPECT_DOUBLE_EQ(distanceFromPointToSegment({5, 3}, {0, 0}, {10, 0}), 3);
    EXPECT_DOUBLE_EQ(distanceFromPointToSegment({-3, 4}, {0, 0}, {10, 0}), 5);
    EXPECT_DOUBLE_EQ(distanceFromPointToSegment({13, 4}, {0, 0}, {10, 0}), 5);
    EXPECT_DOUBLE_EQ(distanceFromPointToSegment({3, 4}, {0, 0}, {0, 0}), 5);
}

TEST(Eraser, a_shape_goes_by_its_bounding_rectangle_grown_by_the_width_on_each_side) {
    const auto circle = shape(ShapeType::circle, {100, 100, 50, 50});
    EXPECT_FALSE(erased(circle, eraser({{80.5, 80.5}})));
    EXPECT_FALSE(erased(circle, eraser({{80, 80}})));
    EXPECT_TRUE(erased(circle, eraser({{79.5, 120}})));
    EXPECT_FALSE(erased(circle, eraser({{169.5, 120}})));
    // The far edges do not belong to a rectangle.
    EXPECT_TRUE(erased(circle, eraser({{170, 120}})));
    // The whole area counts, not only the outline.
    EXPECT_FALSE(erased(circle, eraser({{125, 125}})));
}

TEST(Eraser, a_shape_of_no_size_goes_within_the_width_on_either_axis) {
    const auto dot = shape(ShapeType::rectangle, {100, 100, 0, 0});
    EXPECT_FALSE(erased(dot, eraser({{119, 119}})));
    EXPECT_TRUE(erased(dot, eraser({{121, 100}})));
}

TEST(Eraser, a_text_goes_within_the_width_and_20_of_its_anchor) {
    EXPECT_FALSE(erased(text({100, 100}), eraser({{139.9, 100}})));
    EXPECT_TRUE(erased(text({100, 100}), eraser({{140, 100}})));
    EXPECT_FALSE(erased(text({100, 100}), eraser({{100 + 28, 100 + 28}})));
}

TEST(Eraser, the_far_end_of_a_long_text_is_out_of_reach) {
    EXPECT_TRUE(erased(text({100, 100}, "a text that goes on and on"), eraser({{300, 110}})));
}

TEST(Eraser, a_text_is_one_also_without_a_size) {
    DrawingStroke sizeless = text({100, 100});
    sizeless.fontSize.reset();
    EXPECT_FALSE(erased(sizeless, eraser({{100, 100}})));
}

TEST(Eraser, a_rectangle_makes_no_shape_of_a_freehand_stroke) {
    DrawingStroke line = freehand({{0, 0}, {100, 0}, {200, 0}});
    line.shapeRect = CodableRect(CGRect{0, 0, 200, 200});
    EXPECT_TRUE(erased(line, eraser({{100, 100}})));
}

TEST(Eraser, a_freehand_stroke_is_reached_by_half_of_the_width) {
    const auto line = freehand({{0, 0}, {100, 0}, {200, 0}});
    EXPECT_EQ(erased(line, eraser({{50, 10}}))->points.size(), 3U);
    EXPECT_EQ(erased(line, eraser({{50, 9.9}}))->points.size(), 2U);
}

TEST(Eraser, what_is_left_of_a_stroke_stays_one_and_bridges_the_gap) {
    const auto line = freehand({{0, 0}, {100, 0}, {200, 0}, {300, 0}, {400, 0}});
    const auto left = erased(line, eraser({{150, 0}, {250, 0}}));
    ASSERT_TRUE(left);
    EXPECT_EQ(left->cgPoints(), (std::vector<CGPoint>{{0, 0}, {300, 0}, {400, 0}}));
    EXPECT_EQ(left->id(), line.id());
    EXPECT_EQ(left->timestamp, line.timestamp);
    EXPECT_EQ(left->color, line.color);
}

TEST(Eraser, a_stroke_of_two_points_whose_segment_is_hit_is_removed) {
    EXPECT_FALSE(erased(freehand({{0, 0}, {100, 0}}), eraser({{50, 0}})));
}

TEST(Eraser, a_pass_that_touches_nothing_leaves_the_same_strokes) {
    StrokeList strokes{freehand({{0, 0}, {100, 0}}), text({300, 300})};
    const StrokeList before = strokes;
    processEraser(eraser({{50, 200}, {60, 210}}), strokes);
    const auto difference = StrokeList::difference(before, strokes);
    EXPECT_TRUE(difference.removed.empty());
    EXPECT_TRUE(difference.added.empty());
}

TEST(Eraser, a_fast_sweep_passes_over_a_thin_stroke_between_two_of_its_points) {
    EXPECT_TRUE(erased(freehand({{50, 0}, {50, 100}}), eraser({{0, 50}, {100, 50}})));
}

TEST(Eraser, eraser_strokes_are_skipped) {
    EXPECT_TRUE(erased(freehand({{0, 0}, {9, 0}}, DrawingTool::eraser), eraser({{5, 0}})));
}

/// The eraser without any shortcut, walked as plainly as can be.
void naiveEraser(const DrawingStroke& pass, std::vector<DrawingStroke>& strokes) {
    const auto points = pass.cgPoints();
    const CGFloat width = pass.lineWidth;
    const auto any = [&](auto predicate) { return std::ranges::any_of(points, predicate); };
    std::vector<DrawingStroke> left;
    for (auto stroke : strokes) {
        bool isRemoved = false;
        if (stroke.tool == DrawingTool::eraser) {
            // Left as it is.
        } else if (stroke.isShape && stroke.shapeRect) {
            const CGRect reach = stroke.cgShapeRect()->outset(width);
            isRemoved = any([&](CGPoint point) { return reach.contains(point); });
        } else if (stroke.textContent && !stroke.points.empty()) {
            const CGPoint anchor = stroke.points.front().cgPoint();
            isRemoved = any([&](CGPoint point) {
                return std::hypot(point.x - anchor.x, point.y - anchor.y) < width + 20;
            });
        } else {
            auto rest = stroke.points;
            std::size_t index = 0;
            bool changed = false;
            while (index + 1 < rest.size()) {
                const CGPoint start = rest[index].cgPoint();
                const CGPoint end = rest[index + 1].cgPoint();
                if (any([&](CGPoint point) {
                        return distanceFromPointToSegment(point, start, end) < width / 2;
                    })) {
                    rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(index));
                    changed = true;
                } else {
                    ++index;
                }
            }
            isRemoved = changed && rest.size() <= 1;
            stroke.points = rest;
        }
        if (!isRemoved) {
            left.push_back(stroke);
        }
    }
    strokes = left;
}

TEST(Eraser, leaves_what_the_plain_walk_leaves) {
    std::mt19937 random(11);
    const auto place = [&](int size) {
        return CGPoint{static_cast<CGFloat>(random() % static_cast<unsigned>(size)),
                       static_cast<CGFloat>(random() % static_cast<unsigned>(size))};
    };
    for (int round = 0; round < 200; ++round) {
        std::vector<DrawingStroke> plain;
        StrokeList strokes;
        for (int count = 0; count < 30; ++count) {
            const CGPoint corner = place(600);
            std::vector<CGPoint> points;
            for (auto number = random() % 12; number > 0; --number) {
                points.push_back(corner + place(80));
            }
            DrawingStroke stroke = freehand(points);
            switch (random() % 5) {
            case 0:
                stroke = shape(ShapeType::line, {corner.x, corner.y, place(60).x, place(60).y});
                break;
            case 1:
                stroke = text(corner);
                break;
            case 2:
                stroke = freehand(points, DrawingTool::eraser);
                break;
            default:
                break;
            }
            plain.push_back(stroke);
            strokes.append(stroke);
        }
        std::vector<CGPoint> sweep;
        for (auto number = 1 + random() % 20; number > 0; --number) {
            sweep.push_back(place(700) - CGPoint{50, 50});
        }
        const auto pass = eraser(sweep, static_cast<CGFloat>(1 + random() % 60));
        naiveEraser(pass, plain);
        processEraser(pass, strokes);
        ASSERT_EQ(std::vector<DrawingStroke>(strokes.begin(), strokes.end()), plain)
            << "round " << round;
    }
}

} // namespace
} // namespace quillon::test
