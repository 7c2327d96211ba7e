#include "annotation/FinishedStrokesLayer.h"
#include "annotation/LiveStrokeLayer.h"
#include "annotation/TestStrokes.h"
#include "support/RecordingContext.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillon::test {
namespace {

using Kind = Drawing::Kind;

class LiveLayer : public testing::Test {
protected:
    /// A level stroke of 40 steps of 20 points, shown.
    DrawingStroke shown() {
        std::vector<CGPoint> points;
        for (int step = 0; step <= 40; ++step) {
            points.push_back({20.0 * step, 100});
        }
        DrawingStroke stroke = freehand(points);
        layer.update(stroke);
        return stroke;
    }

    RecordingGraphics graphics;
    LiveStrokeLayer layer{graphics};
};

TEST_F(LiveLayer, a_new_point_damages_the_tail_alone) {
    DrawingStroke stroke = shown();
    stroke.points.emplace_back(CGPoint{820, 120});
    const Damage damage = layer.update(stroke);
    EXPECT_TRUE(damage.intersects({819, 119, 2, 2}));
    EXPECT_FALSE(damage.intersects({0, 90, 700, 20}));
}

TEST_F(LiveLayer, a_new_point_damages_how_the_segment_before_it_bent_and_how_it_bends_now) {
    const auto middleOf = [](const DrawingStroke& stroke) {
        const FreehandCurve curve(stroke.points);
        const auto last = curve.segment(1);
        const CGPoint middle = (last.start + last.control1 * 3 + last.control2 * 3 + last.end) / 8;
        return CGRect{middle.x - 1, middle.y - 1, 2, 2};
    };
    DrawingStroke stroke = freehand({{0, 0}, {0, 100}});
    layer.update(stroke);
    for (const CGPoint next : {CGPoint{0, 400}, CGPoint{900, 400}}) {
        stroke.points.emplace_back(next);
        layer.update(stroke);
    }
    const CGRect before = middleOf(stroke);
    stroke.points.emplace_back(CGPoint{900, -2000});
    const Damage damage = layer.update(stroke);
    EXPECT_TRUE(damage.intersects(before));
    EXPECT_TRUE(damage.intersects(middleOf(stroke)));
}

TEST_F(LiveLayer, another_stroke_damages_all_that_the_one_before_it_showed) {
    shown();
    std::vector<CGPoint> points(50, CGPoint{300, 500});
    EXPECT_TRUE(layer.update(freehand(points)).intersects({20, 99, 1, 2}));
}

TEST_F(LiveLayer, a_stroke_that_lost_points_damages_where_they_were) {
    DrawingStroke stroke = shown();
    stroke.points.resize(10);
    EXPECT_TRUE(layer.update(stroke).intersects({500, 99, 1, 2}));
}

TEST_F(LiveLayer, a_third_point_damages_the_straight_line_that_stood_before) {
    DrawingStroke stroke = freehand({{100, 0}, {200, 0}});
    layer.update(stroke);
    stroke.points.emplace_back(CGPoint{0, 0});
    EXPECT_TRUE(layer.update(stroke).intersects({199, -1, 1, 2}));
}

TEST_F(LiveLayer, the_end_of_a_stroke_damages_all_that_it_ever_showed) {
    DrawingStroke stroke = shown();
    for (int step = 1; step <= 20; ++step) {
        stroke.points.emplace_back(CGPoint{800, 100 + 20.0 * step});
        layer.update(stroke);
    }
    const Damage damage = layer.update(std::nullopt);
    for (int step = 0; step <= 40; ++step) {
        EXPECT_TRUE(damage.intersects({20.0 * step, 99, 1, 2})) << step;
    }
    for (int step = 0; step <= 20; ++step) {
        EXPECT_TRUE(damage.intersects({799, 99 + 20.0 * step, 2, 2})) << step;
    }
    EXPECT_TRUE(layer.update(std::nullopt).isEmpty());
}

TEST_F(LiveLayer, the_same_stroke_again_damages_nothing) {
    const DrawingStroke stroke = shown();
    EXPECT_TRUE(layer.update(stroke).isEmpty());
}

TEST_F(LiveLayer, a_shape_that_moved_damages_its_old_place_and_its_new_one) {
    DrawingStroke stroke = shape(ShapeType::rectangle, {0, 0, 50, 50});
    layer.update(stroke);
    stroke.shapeRect = CodableRect(CGRect{0, 0, 90, 20});
    const Damage damage = layer.update(stroke);
    EXPECT_TRUE(damage.intersects({25, 49, 1, 2}));
    EXPECT_TRUE(damage.intersects({89, 10, 2, 1}));
}

TEST_F(LiveLayer, a_shape_is_drawn_once_for_each_move_and_copied_from_then_on) {
    layer.layout({1000, 700}, 1);
    DrawingStroke stroke = shape(ShapeType::circle, {0, 0, 50, 50});
    for (const CGFloat side : {200.0, 300.0}) {
        stroke.shapeRect = CodableRect(CGRect{0, 0, side, side});
        layer.update(stroke);
        const auto& drawn = graphics.lastBitmap->context.drawings;
        ASSERT_EQ(drawn.back().kind, Kind::stroke);
        EXPECT_EQ(drawn.back().path.controlPointBounds(), (CGRect{0, 0, side, side}));
        EXPECT_EQ(drawn[drawn.size() - 2].kind, Kind::clear);
    }
    RecordingContext screen;
    layer.draw(screen, stroke);
    ASSERT_EQ(screen.drawings.size(), 1U);
    EXPECT_EQ(screen.drawings[0].kind, Kind::bitmap);
}

TEST_F(LiveLayer, after_a_shape_a_freehand_stroke_is_drawn_directly) {
    layer.layout({1000, 700}, 1);
    layer.update(shape(ShapeType::circle, {0, 0, 50, 50}));
    const DrawingStroke stroke = shown();
    RecordingContext screen;
    layer.draw(screen, stroke);
    ASSERT_EQ(screen.drawings.size(), 1U);
    EXPECT_EQ(screen.drawings[0].kind, Kind::stroke);
    layer.update(shape(ShapeType::circle, {0, 0, 50, 50}));
    layer.update(std::nullopt);
    layer.draw(screen, std::nullopt);
    EXPECT_EQ(screen.drawings.size(), 1U);
}

TEST(ChangedInk, is_all_of_both_strokes_when_more_than_points_differ) {
    RecordingGraphics graphics;
    const FinishedStroke before(freehand({{0, 0}, {50, 0}, {100, 0}}, DrawingTool::pen, 4), 0);
    for (const auto& after : {freehand({{0, 0}, {50, 0}, {100, 0}}, DrawingTool::pen, 5),
                              freehand({{0, 0}, {50, 0}, {100, 0}}, DrawingTool::highlighter, 4),
                              shape(ShapeType::circle, {0, 0, 9, 9})}) {
        Damage changed;
        visitChangedInk(before, FinishedStroke(after, 0), graphics,
                        [&](const CGRect& ink) { changed.add(ink); });
        EXPECT_TRUE(changed.intersects({0, 0, 1, 1}));
        EXPECT_TRUE(changed.intersects({99, 0, 1, 1}));
    }
}

TEST(StrokeInk, of_a_text_is_that_of_its_size_at_its_place) {
    RecordingGraphics graphics;
    // The fake's text is half an em for each byte wide and an em and a quarter high.
    EXPECT_EQ(strokeInk(text({70, 80}, "Hello"), 0, graphics).bounds(),
              (CGRect{69, 79, 0.5 * 24 * 5 + 2, 1.25 * 24 + 2}));
}

} // namespace
} // namespace quillon::test
