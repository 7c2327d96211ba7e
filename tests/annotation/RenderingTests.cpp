#include "annotation/SegmentIndex.h"
#include "annotation/StrokePath.h"
#include "annotation/StrokeRenderer.h"
#include "annotation/TestStrokes.h"
#include "support/RecordingContext.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>
#include <set>

namespace quillon::test {
namespace {

using Verb = Path::Verb;

std::vector<Drawing> drawn(const DrawingStroke& stroke) {
    RecordingContext context;
    drawStroke(context, stroke, blendModeOf(stroke.tool), SegmentIndex(stroke.points));
    return context.drawings;
}

TEST(Rendering, two_points_are_a_straight_line) {
    const auto drawings = drawn(freehand({{1, 2}, {30, 40}}));
    ASSERT_EQ(drawings.size(), 1U);
    EXPECT_EQ(drawings[0].path.verbs(), (std::vector<Verb>{Verb::move, Verb::line}));
    EXPECT_EQ(drawings[0].path.points(), (std::vector<CGPoint>{{1, 2}, {30, 40}}));
}

TEST(Rendering, three_points_are_one_curve_from_the_first_to_the_last) {
    const auto drawings = drawn(freehand({{0, 0}, {60, 0}, {60, 60}}));
    ASSERT_EQ(drawings.size(), 1U);
    EXPECT_EQ(drawings[0].path.verbs(), (std::vector<Verb>{Verb::move, Verb::curve}));
    // p1 + (p2 - p0) / 6 and p2 - (p2 - p1) / 6.
    EXPECT_EQ(drawings[0].path.points(),
              (std::vector<CGPoint>{{0, 0}, {70, 10}, {60, 50}, {60, 60}}));
}

TEST(Rendering, more_points_are_joined_curves_by_the_catmull_rom_rule) {
    const auto drawings = drawn(freehand({{0, 0}, {6, 0}, {12, 6}, {18, 12}, {24, 6}}));
    ASSERT_EQ(drawings.size(), 1U);
    EXPECT_EQ(drawings[0].path.verbs(),
              (std::vector<Verb>{Verb::move, Verb::curve, Verb::curve, Verb::curve}));
    EXPECT_EQ(drawings[0].path.points(), (std::vector<CGPoint>{{0, 0},
                                                               {8, 1},
                                                               {10, 4},
                                                               {12, 6},
                                                               {14, 8},
                                                               {16, 12},
                                                               {18, 12},
                                                               {20, 12},
                                                               {23, 7},
                                                               {24, 6}}));
}

TEST(Rendering, fewer_than_two_points_draw_nothing) {
    EXPECT_TRUE(drawn(freehand({})).empty());
    EXPECT_TRUE(drawn(freehand({{1, 1}})).empty());
}

TEST(Rendering, a_line_is_stroked_in_its_colour_and_width_with_round_ends_and_corners) {
    const auto drawings = drawn(freehand({{1, 2}, {30, 40}}, DrawingTool::pen, 7));
    EXPECT_EQ(drawings[0].style, (StrokeStyle{7, LineCap::round, LineJoin::round}));
    EXPECT_EQ(drawings[0].color, Color::red);
}

TEST(Rendering, each_stroke_has_a_layer_with_its_blend_mode_inside_of_it) {
    const auto pen = drawn(freehand({{1, 2}, {30, 40}}));
    EXPECT_EQ(pen[0].depth, 1);
    EXPECT_EQ(pen[0].blendMode, BlendMode::normal);
    const auto highlighter = drawn(freehand({{1, 2}, {30, 40}}, DrawingTool::highlighter));
    EXPECT_EQ(highlighter[0].depth, 1);
    EXPECT_EQ(highlighter[0].blendMode, BlendMode::plusLighter);
    EXPECT_EQ(highlighter[0].receivedWith, BlendMode::normal);
    EXPECT_EQ(highlighter[0].color, Color::red);
}

TEST(Rendering, a_live_eraser_stroke_is_translucent_white_whatever_its_colour) {
    const auto drawings = drawn(freehand({{1, 2}, {30, 40}}, DrawingTool::eraser, 20));
    EXPECT_EQ(drawings[0].color, Color::white.opacity(0.5));
    EXPECT_EQ(drawings[0].style.lineWidth, 20);
}

TEST(Rendering, a_rectangle_is_stroked_along_its_edges) {
    const auto drawings = drawn(shape(ShapeType::rectangle, {10, 20, 30, 40}));
    ASSERT_EQ(drawings.size(), 1U);
    EXPECT_EQ(drawings[0].kind, Drawing::Kind::stroke);
    EXPECT_EQ(drawings[0].path.controlPointBounds(), (CGRect{10, 20, 30, 40}));
    EXPECT_EQ(drawings[0].path.verbs(),
              (std::vector<Verb>{Verb::move, Verb::line, Verb::line, Verb::line, Verb::close}));
}

TEST(Rendering, a_circle_is_the_ellipse_inscribed_in_its_rectangle) {
    const auto drawings = drawn(shape(ShapeType::circle, {10, 20, 30, 40}));
    EXPECT_EQ(drawings[0].path.verbs(), (std::vector<Verb>{Verb::move, Verb::curve, Verb::curve,
                                                           Verb::curve, Verb::curve, Verb::close}));
    EXPECT_EQ(drawings[0].path.points().front(), (CGPoint{40, 40}));
}

TEST(Rendering, a_line_and_an_arrow_without_ends_fall_back_to_their_rectangle) {
    const CGRect rect{10, 20, 30, 40};
    EXPECT_EQ(shapePath(ShapeType::line, rect, {}, {}).points(),
              (std::vector<CGPoint>{{10, 20}, {40, 60}}));
    const auto arrow = shapePath(ShapeType::arrow, rect, {}, {}).points();
    EXPECT_EQ(arrow[0], (CGPoint{10, 40}));
    EXPECT_EQ(arrow[1], (CGPoint{40, 40}));
}

TEST(Rendering, the_arrow_has_two_open_barbs_of_15_points_at_30_degrees) {
    const auto path = shapePath(ShapeType::arrow, {0, 0, 100, 0}, CGPoint{100, 0}, CGPoint{0, 0});
    EXPECT_EQ(path.verbs(), (std::vector<Verb>{Verb::move, Verb::line, Verb::move, Verb::line,
                                               Verb::move, Verb::line}));
    const auto& points = path.points();
    EXPECT_EQ(points[2], (CGPoint{0, 0}));
    EXPECT_EQ(points[4], (CGPoint{0, 0}));
    const CGFloat along = 15 * std::cos(std::numbers::pi / 6);
    EXPECT_NEAR(points[3].x, along, 1e-9);
    EXPECT_NEAR(points[5].x, along, 1e-9);
    EXPECT_NEAR(std::abs(points[3].y), 7.5, 1e-9);
    EXPECT_NEAR(points[3].y, -points[5].y, 1e-9);
}

TEST(Rendering, an_arrow_of_no_length_still_shows_its_barbs) {
    const auto path = shapePath(ShapeType::arrow, {5, 5, 0, 0}, CGPoint{5, 5}, CGPoint{5, 5});
    EXPECT_NEAR(path.points()[3].x, 5 - 15 * std::cos(std::numbers::pi / 6), 1e-9);
    EXPECT_NEAR(path.points()[3].y, 5 + 7.5, 1e-9);
    EXPECT_NEAR(path.points()[5].y, 5 - 7.5, 1e-9);
}

TEST(Rendering, a_shape_without_its_rectangle_draws_nothing_yet) {
    DrawingStroke young = shape(ShapeType::rectangle, {1, 1, 2, 2});
    young.shapeRect.reset();
    EXPECT_TRUE(drawn(young).empty());
}

TEST(Rendering, a_shape_of_no_size_is_stroked_as_an_empty_figure) {
    for (const auto type : {ShapeType::rectangle, ShapeType::circle}) {
        const auto drawings = drawn(shape(type, {5, 6, 0, 0}));
        ASSERT_EQ(drawings.size(), 1U);
        EXPECT_EQ(drawings[0].kind, Drawing::Kind::stroke);
        for (const auto& point : drawings[0].path.points()) {
            EXPECT_EQ(point, (CGPoint{5, 6}));
        }
    }
}

TEST(Rendering, a_stroke_with_a_rectangle_that_is_no_shape_is_a_path) {
    DrawingStroke stroke = freehand({{1, 2}, {30, 40}});
    stroke.shapeType = ShapeType::circle;
    stroke.shapeRect = CodableRect(CGRect{0, 0, 10, 10});
    const auto drawings = drawn(stroke);
    ASSERT_EQ(drawings.size(), 1U);
    EXPECT_EQ(drawings[0].path.points(), (std::vector<CGPoint>{{1, 2}, {30, 40}}));
}

TEST(Rendering, a_shape_without_its_kind_is_a_path) {
    DrawingStroke stroke = shape(ShapeType::circle, {1, 1, 2, 2});
    stroke.shapeType.reset();
    EXPECT_TRUE(drawn(stroke).empty());
}

TEST(Rendering, a_text_without_a_size_draws_nothing) {
    DrawingStroke stroke = text({70, 80});
    stroke.fontSize.reset();
    EXPECT_TRUE(drawn(stroke).empty());
}

TEST(Rendering, a_text_stands_with_its_top_leading_corner_at_its_point) {
    const auto drawings = drawn(text({70, 80}, "Hello"));
    ASSERT_EQ(drawings.size(), 1U);
    EXPECT_EQ(drawings[0].text, (Text{"Hello", 24, Color::red}));
    EXPECT_EQ(drawings[0].at, (CGPoint{70, 80}));
    EXPECT_EQ(drawings[0].anchor, Anchor::topLeading);
}

TEST(Rendering, a_text_stroke_without_text_draws_nothing) {
    DrawingStroke empty = text({70, 80});
    empty.textContent.reset();
    EXPECT_TRUE(drawn(empty).empty());
}

TEST(Rendering, highlighter_strokes_come_after_all_others_whenever_they_were_made) {
    RecordingContext context;
    RecordingGraphics graphics;
    const StrokeList strokes{freehand({{1, 1}, {2, 2}}, DrawingTool::pen, 1),
                             freehand({{1, 1}, {2, 2}}, DrawingTool::highlighter, 2),
                             freehand({{1, 1}, {2, 2}}, DrawingTool::pen, 3)};
    drawStrokes(context, strokes, graphics);
    std::vector<CGFloat> widths;
    for (const auto& drawing : context.drawings) {
        widths.push_back(drawing.style.lineWidth);
    }
    EXPECT_EQ(widths, (std::vector<CGFloat>{1, 3, 2}));
    EXPECT_EQ(context.drawings.back().blendMode, BlendMode::plusLighter);
}

TEST(Rendering, a_fading_stroke_keeps_its_place_in_the_order) {
    RecordingContext context;
    RecordingGraphics graphics;
    StrokeList strokes{freehand({{1, 1}, {2, 2}}, DrawingTool::pen, 1),
                       freehand({{1, 1}, {2, 2}}, DrawingTool::pen, 2),
                       freehand({{1, 1}, {2, 2}}, DrawingTool::pen, 3)};
    const StrokeRef gone = strokes.ref(1);
    strokes.removeIf([&](const DrawingStroke& stroke) { return stroke.lineWidth == 2; });
    drawStrokes(context, strokes, graphics, {{gone, 0.25}});
    ASSERT_EQ(context.drawings.size(), 3U);
    EXPECT_EQ(context.drawings[1].style.lineWidth, 2);
    EXPECT_EQ(context.drawings[1].receivedOpacity, 0.25);
    EXPECT_EQ(context.drawings[2].receivedOpacity, 1);
}

TEST(Rendering, a_fading_highlighter_stroke_stays_on_top) {
    RecordingContext context;
    RecordingGraphics graphics;
    StrokeList strokes{freehand({{1, 1}, {2, 2}}, DrawingTool::highlighter, 1),
                       freehand({{1, 1}, {2, 2}}, DrawingTool::pen, 2)};
    const StrokeRef gone = strokes.ref(0);
    strokes.removeIf([&](const DrawingStroke& stroke) { return stroke.lineWidth == 1; });
    drawStrokes(context, strokes, graphics, {{gone, 0.25}});
    ASSERT_EQ(context.drawings.size(), 2U);
    EXPECT_EQ(context.drawings[1].style.lineWidth, 1);
    EXPECT_EQ(context.drawings[1].receivedOpacity, 0.25);
}

TEST(Rendering, a_stroke_made_while_another_fades_lies_over_it) {
    RecordingContext context;
    RecordingGraphics graphics;
    StrokeList strokes{freehand({{1, 1}, {2, 2}}, DrawingTool::pen, 1),
                       freehand({{1, 1}, {2, 2}}, DrawingTool::pen, 2)};
    const StrokeRef gone = strokes.ref(1);
    strokes.removeIf([&](const DrawingStroke& stroke) { return stroke.lineWidth == 2; });
    strokes.append(freehand({{1, 1}, {2, 2}}, DrawingTool::pen, 3));
    drawStrokes(context, strokes, graphics, {{gone, 0.25}});
    ASSERT_EQ(context.drawings.size(), 3U);
    EXPECT_EQ(context.drawings[1].style.lineWidth, 2);
    EXPECT_EQ(context.drawings[2].style.lineWidth, 3);
}

TEST(Rendering, strokes_outside_of_the_clip_are_left_out) {
    RecordingContext context;
    context.clip = {100, 100, 50, 50};
    RecordingGraphics graphics;
    drawStrokes(context, {freehand({{1, 1}, {2, 2}}), freehand({{110, 110}, {120, 120}})},
                graphics);
    EXPECT_EQ(context.drawings.size(), 1U);
}

TEST(Rendering, of_a_curve_that_ends_where_it_began_only_what_is_near_is_drawn) {
    const DrawingStroke loop =
        freehand({{0, 0}, {100, 0}, {200, 0}, {200, 200}, {0, 200}, {0, 100}, {0, 0}});
    const SegmentIndex segments(loop.points);
    const auto drawnIn = [&](const CGRect& rect) {
        RecordingContext context;
        return drawStroke(context, loop, BlendMode::normal, segments, PaintArea(rect));
    };
    EXPECT_GT(drawnIn({-2, -2, 4, 4}), 1U) << "both ends";
    EXPECT_LT(drawnIn({-2, -2, 4, 4}), 5U);
    EXPECT_GT(drawnIn({198, 198, 4, 4}), 0U);
    EXPECT_LT(drawnIn({198, 198, 4, 4}), 5U);
}

TEST(SegmentIndex, finds_every_segment_near_a_rectangle) {
    std::mt19937 random(5);
    const auto coordinate = [&] { return static_cast<CGFloat>(random() % 500); };
    for (int round = 0; round < 50; ++round) {
        std::vector<CodablePoint> points;
        CGPoint place{coordinate(), coordinate()};
        SegmentIndex grown;
        const auto count = 2 + random() % 400;
        for (std::size_t number = 0; number < count; ++number) {
            place = place + CGPoint{coordinate() / 20 - 12, coordinate() / 20 - 12};
            points.emplace_back(place);
            grown.extend(points);
        }
        const FreehandCurve curve(points);
        const CGRect rect{coordinate(), coordinate(), 40, 30};
        std::set<std::size_t> wanted;
        for (std::size_t index = 0; index < curve.segmentCount(); ++index) {
            if (curve.segment(index).bounds().intersects(rect.outset(5))) {
                wanted.insert(index);
            }
        }
        std::set<std::size_t> found;
        std::size_t previousPast = 0;
        grown.forEachRunNear(curve, PaintArea(rect), 5, [&](std::size_t first, std::size_t past) {
            ASSERT_LT(first, past);
            ASSERT_TRUE(found.empty() || first > previousPast);
            previousPast = past;
            for (; first < past; ++first) {
                found.insert(first);
            }
        });
        for (const auto index : wanted) {
            ASSERT_TRUE(found.contains(index)) << "round " << round;
        }
    }
}

TEST(StrokeInk, covers_every_point_of_the_path) {
    const auto path = shapePath(ShapeType::circle, {10, 10, 800, 600}, {}, {});
    Damage ink;
    visitInkOfPath(path, 10, [&](const CGRect& piece) { ink.add(piece); });
    CGFloat area = 0;
    for (const auto& rect : ink.rects()) {
        area += rect.width * rect.height;
    }
    EXPECT_LT(area, 800 * 600 / 2) << "the inside of a large shape is left alone";
    for (int degree = 0; degree < 360; ++degree) {
        const double angle = degree * std::numbers::pi / 180;
        const CGPoint place{410 + 404 * std::cos(angle), 310 + 304 * std::sin(angle)};
        EXPECT_TRUE(ink.intersects({place.x - 0.01, place.y - 0.01, 0.02, 0.02})) << degree;
    }
}

} // namespace
} // namespace quillon::test
