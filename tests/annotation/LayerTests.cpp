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

class FinishedLayer : public testing::Test {
protected:
    FinishedLayer() { layer.layout({1000, 700}, 1); }

    /// What one update has drawn into the bitmap.
    std::vector<Drawing> drawnBy(const StrokeList& strokes, FadingStrokes fading = {}) {
        if (graphics.lastBitmap) {
            graphics.lastBitmap->context.drawings.clear();
        }
        layer.update(strokes, std::move(fading));
        return graphics.lastBitmap->context.drawings;
    }

    static std::vector<Kind> kinds(const std::vector<Drawing>& drawings) {
        std::vector<Kind> result;
        for (const auto& drawing : drawings) {
            result.push_back(drawing.kind);
        }
        return result;
    }

    RecordingGraphics graphics;
    FinishedStrokesLayer layer{graphics};
    const CGPoint a{10, 10};
    const CGPoint b{50, 50};
};

TEST_F(FinishedLayer, there_is_no_bitmap_while_there_is_nothing_to_show) {
    layer.update({}, {});
    EXPECT_EQ(graphics.lastBitmap, nullptr);
}

TEST_F(FinishedLayer, the_first_stroke_paints_everything) {
    EXPECT_EQ(kinds(drawnBy({freehand({a, b})})), (std::vector<Kind>{Kind::stroke}));
    EXPECT_EQ(graphics.lastBitmap->context.clip, (CGRect{0, 0, 1000, 700}));
}

TEST_F(FinishedLayer, a_stroke_on_top_is_drawn_alone) {
    StrokeList strokes{freehand({a, b})};
    drawnBy(strokes);
    strokes.append(freehand({a, b}, DrawingTool::pen, 7));
    const auto drawings = drawnBy(strokes);
    ASSERT_EQ(kinds(drawings), (std::vector<Kind>{Kind::stroke}));
    EXPECT_EQ(drawings[0].style.lineWidth, 7);
}

TEST_F(FinishedLayer, a_stroke_under_a_highlighter_stroke_has_its_place_painted_anew) {
    StrokeList strokes{freehand({a, b}, DrawingTool::highlighter, 3)};
    drawnBy(strokes);
    strokes.append(freehand({a, b}, DrawingTool::pen, 7));
    const auto drawings = drawnBy(strokes);
    ASSERT_EQ(kinds(drawings), (std::vector<Kind>{Kind::clear, Kind::stroke, Kind::stroke}));
    EXPECT_EQ(drawings[1].style.lineWidth, 7);
    EXPECT_EQ(drawings[2].style.lineWidth, 3);
}

TEST_F(FinishedLayer, a_stroke_apart_from_every_highlighter_stroke_is_drawn_alone) {
    StrokeList strokes{freehand({{500, 500}, {600, 600}}, DrawingTool::highlighter, 3)};
    drawnBy(strokes);
    strokes.append(freehand({a, b}));
    EXPECT_EQ(kinds(drawnBy(strokes)), (std::vector<Kind>{Kind::stroke}));
}

TEST_F(FinishedLayer, a_stroke_that_goes_is_cleared_where_it_stood_and_nowhere_else) {
    StrokeList strokes{freehand({a, b}), freehand({{500, 500}, {600, 600}})};
    drawnBy(strokes);
    strokes.removeIf([](const DrawingStroke& stroke) { return stroke.points.front().x == 500; });
    EXPECT_EQ(kinds(drawnBy(strokes)), (std::vector<Kind>{Kind::clear}));
    EXPECT_TRUE(graphics.lastBitmap->context.clip.intersects({550, 550, 1, 1}));
    EXPECT_FALSE(graphics.lastBitmap->context.clip.intersects({0, 0, 100, 100}));
}

TEST_F(FinishedLayer, a_stroke_that_was_shortened_has_its_place_painted_anew) {
    StrokeList strokes{freehand({a, b, {90, 10}})};
    drawnBy(strokes);
    strokes.replace(0, freehand({b, {90, 10}}));
    EXPECT_EQ(kinds(drawnBy(strokes)), (std::vector<Kind>{Kind::clear, Kind::stroke}));
}

TEST_F(FinishedLayer, a_stroke_that_was_shortened_is_painted_anew_only_where_it_lost_points) {
    std::vector<CGPoint> points;
    for (int step = 0; step <= 90; ++step) {
        points.push_back({10.0 * step, 100});
    }
    StrokeList strokes{freehand(points)};
    drawnBy(strokes);
    points.erase(points.begin() + 40, points.begin() + 50);
    DrawingStroke shortened = strokes[0];
    shortened.points = freehand(points).points;
    strokes.replace(0, shortened);
    const Damage damage = layer.update(strokes, {});
    EXPECT_TRUE(damage.intersects({400, 99, 100, 2}));
    EXPECT_FALSE(damage.intersects({0, 0, 340, 700}));
    EXPECT_FALSE(damage.intersects({560, 0, 440, 700}));
    EXPECT_FALSE(graphics.lastBitmap->context.clip.intersects({560, 0, 440, 700}));
}

TEST_F(FinishedLayer, a_stroke_that_lost_points_in_two_places_is_left_alone_between_them) {
    std::vector<CGPoint> points;
    for (int step = 0; step <= 90; ++step) {
        points.push_back({10.0 * step, 100});
    }
    const StrokeList whole{freehand(points)};
    points.erase(points.begin() + 60, points.begin() + 65);
    points.erase(points.begin() + 20, points.begin() + 25);
    StrokeList gaps = whole;
    DrawingStroke shortened = whole[0];
    shortened.points = freehand(points).points;
    gaps.replace(0, shortened);
    layer.update(whole, {});
    for (const StrokeList& strokes : {gaps, whole}) {
        const Damage damage = layer.update(strokes, {});
        EXPECT_TRUE(damage.intersects({200, 99, 50, 2}));
        EXPECT_TRUE(damage.intersects({600, 99, 50, 2}));
        EXPECT_FALSE(damage.intersects({300, 99, 240, 2}));
    }
}

TEST_F(FinishedLayer, a_stroke_that_came_back_into_the_middle_has_its_place_painted_anew) {
    const StrokeList before{freehand({a, b}, DrawingTool::pen, 1),
                            freehand({a, b}, DrawingTool::pen, 2)};
    StrokeList without = before;
    without.removeIf([](const DrawingStroke& stroke) { return stroke.lineWidth == 1; });
    drawnBy(without);
    EXPECT_EQ(kinds(drawnBy(before)), (std::vector<Kind>{Kind::clear, Kind::stroke, Kind::stroke}));
}

TEST_F(FinishedLayer, the_same_strokes_again_draw_and_damage_nothing) {
    const StrokeList strokes{freehand({a, b})};
    drawnBy(strokes);
    EXPECT_TRUE(drawnBy(strokes).empty());
    EXPECT_TRUE(layer.update(strokes, {}).isEmpty());
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

TEST_F(FinishedLayer, the_undo_of_a_clear_draws_nothing_anew) {
    const StrokeList strokes{freehand({a, b}), freehand({b, {90, 90}})};
    drawnBy(strokes);
    const auto* bitmap = graphics.lastBitmap;
    drawnBy({});
    EXPECT_TRUE(drawnBy(strokes).empty());
    EXPECT_EQ(graphics.lastBitmap, bitmap);
    drawnBy({});
    EXPECT_TRUE(layer.update(strokes, {}).intersects({20, 20, 1, 1}));
    RecordingContext screen;
    layer.draw(screen, {0, 0, 9, 9});
    EXPECT_EQ(kinds(screen.drawings), (std::vector<Kind>{Kind::bitmap}));
}

TEST_F(FinishedLayer, a_stroke_drawn_and_undone_after_a_clear_does_not_cost_what_was_cleared) {
    const StrokeList strokes{freehand({a, b}), freehand({b, {90, 90}})};
    const StrokeList other{freehand({a, b})};
    drawnBy(strokes);
    drawnBy({});
    EXPECT_EQ(kinds(drawnBy(other)), (std::vector<Kind>{Kind::stroke}));
    layer.update({}, {});
    graphics.lastBitmap = nullptr;
    layer.update(strokes, {});
    EXPECT_EQ(graphics.lastBitmap, nullptr);
}

TEST_F(FinishedLayer, what_was_cleared_is_painted_anew_for_a_new_size_or_a_fade) {
    const StrokeList strokes{freehand({a, b})};
    const StrokeRef gone = StrokeList{freehand({a, b}, DrawingTool::pen, 2)}.ref(0);
    drawnBy(strokes);
    layer.update({}, {});
    layer.layout({300, 200}, 2);
    graphics.lastBitmap = nullptr;
    EXPECT_EQ(kinds(drawnBy(strokes)), (std::vector<Kind>{Kind::stroke}));
    layer.update({}, {});
    EXPECT_EQ(kinds(drawnBy(strokes, {{gone, 0.5}})),
              (std::vector<Kind>{Kind::stroke, Kind::stroke}));
}

TEST_F(FinishedLayer, a_picture_with_a_fading_stroke_is_not_put_aside) {
    const StrokeList strokes{freehand({a, b})};
    const StrokeRef gone = StrokeList{freehand({a, b}, DrawingTool::pen, 2)}.ref(0);
    drawnBy(strokes, {{gone, 0.5}});
    layer.update({}, {});
    graphics.lastBitmap = nullptr;
    EXPECT_EQ(kinds(drawnBy(strokes)), (std::vector<Kind>{Kind::stroke}));
}

TEST_F(FinishedLayer, a_new_size_paints_everything_anew) {
    const StrokeList strokes{freehand({a, b})};
    drawnBy(strokes);
    layer.layout({300, 200}, 2);
    graphics.lastBitmap = nullptr;
    EXPECT_EQ(kinds(drawnBy(strokes)), (std::vector<Kind>{Kind::stroke}));
    EXPECT_EQ(graphics.lastBitmap->context.clip, (CGRect{0, 0, 300, 200}));
    EXPECT_EQ(graphics.lastBitmap->scale(), 2);
}

TEST_F(FinishedLayer, a_stroke_that_comes_while_another_begins_or_ends_to_fade_draws_both_anew) {
    StrokeList strokes{freehand({a, b}, DrawingTool::pen, 1)};
    const StrokeRef fading = StrokeList{freehand({a, b}, DrawingTool::pen, 2)}.ref(0);
    drawnBy(strokes);
    strokes.append(freehand({a, b}, DrawingTool::pen, 3));
    EXPECT_EQ(kinds(drawnBy(strokes, {{fading, 0.5}})),
              (std::vector<Kind>{Kind::clear, Kind::stroke, Kind::stroke, Kind::stroke}));
    strokes.append(freehand({a, b}, DrawingTool::pen, 4));
    EXPECT_EQ(kinds(drawnBy(strokes)),
              (std::vector<Kind>{Kind::clear, Kind::stroke, Kind::stroke, Kind::stroke}));
}

TEST_F(FinishedLayer, while_a_stroke_fades_its_place_is_painted_anew_and_once_more_at_the_end) {
    StrokeList strokes{freehand({a, b}, DrawingTool::pen, 1),
                       freehand({a, b}, DrawingTool::pen, 2)};
    drawnBy(strokes);
    const StrokeRef gone = strokes.ref(0);
    strokes.removeIf([](const DrawingStroke& stroke) { return stroke.lineWidth == 1; });
    EXPECT_EQ(kinds(drawnBy(strokes, {{gone, 0.5}})),
              (std::vector<Kind>{Kind::clear, Kind::stroke, Kind::stroke}));
    EXPECT_EQ(kinds(drawnBy(strokes, {{gone, 0.25}})),
              (std::vector<Kind>{Kind::clear, Kind::stroke, Kind::stroke}));
    EXPECT_EQ(kinds(drawnBy(strokes)), (std::vector<Kind>{Kind::clear, Kind::stroke}));
    EXPECT_TRUE(drawnBy(strokes).empty());
}

TEST(StrokeInk, of_a_text_is_that_of_its_size_at_its_place) {
    RecordingGraphics graphics;
    // The fake's text is half an em for each byte wide and an em and a quarter high.
    EXPECT_EQ(strokeInk(text({70, 80}, "Hello"), 0, graphics).bounds(),
              (CGRect{69, 79, 0.5 * 24 * 5 + 2, 1.25 * 24 + 2}));
}

} // namespace
} // namespace quillon::test
