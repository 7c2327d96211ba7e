#include "annotation/FinishedStrokesLayer.h"
#include "annotation/TestStrokes.h"
#include "support/RecordingContext.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace quillon::test {
namespace {

using Kind = Drawing::Kind;
using Widths = std::vector<CGFloat>;

/// Strokes are told apart by the widths of their lines.
class FinishedLayer : public testing::Test {
protected:
    FinishedLayer() { layer.layout({1000, 700}, 1); }

    /// The strokes that an update draws before it ends.
    Widths drawnAtOnceBy(const StrokeList& strokes, FadingStrokes fading = {}) {
        graphics.drawn.clear();
        damage = layer.update(strokes, std::move(fading));
        return drawn();
    }
    /// The strokes that are drawn by what remains to be repainted.
    Widths repainted() {
        graphics.drawn.clear();
        while (layer.isBehind()) {
            damage.add(layer.repaintStep());
        }
        return drawn();
    }
    /// Both, one after the other.
    Widths drawnBy(const StrokeList& strokes, FadingStrokes fading = {}) {
        Widths widths = drawnAtOnceBy(strokes, std::move(fading));
        const Widths later = repainted();
        widths.insert(widths.end(), later.begin(), later.end());
        return widths;
    }
    /// The strokes below a broad one, with which the layer is painted to the end.
    StrokeList belowBroad() {
        const StrokeList below = pile(1);
        StrokeList strokes = below;
        strokes.append(broad);
        drawnBy(strokes);
        return below;
    }
    int stepsToTheEnd() {
        int steps = 0;
        for (; layer.isBehind(); ++steps) {
            damage.add(layer.repaintStep());
        }
        return steps;
    }
    /// What each step shows, to the end.
    std::vector<Damage> pieces() {
        std::vector<Damage> shown;
        while (layer.isBehind()) {
            if (const Damage piece = layer.repaintStep(); !piece.isEmpty()) {
                shown.push_back(piece);
            }
        }
        return shown;
    }
    /// That they are many, small, in order from the top, and the whole of `rect` in the end.
    static void expectPiecesOf(const CGRect& rect, const std::vector<Damage>& pieces) {
        EXPECT_GT(pieces.size(), 10U);
        Damage all;
        CGFloat top = 0;
        for (const Damage& piece : pieces) {
            CGFloat area = 0;
            for (const CGRect& part : piece.rects()) {
                area += part.width * part.height;
            }
            EXPECT_LE(area, 32768);
            EXPECT_GE(piece.bounds().minY(), top);
            top = piece.bounds().minY();
            all.add(piece);
        }
        for (CGFloat y = rect.minY(); y < rect.maxY(); y += 10) {
            for (CGFloat x = rect.minX(); x < rect.maxX(); x += 10) {
                EXPECT_TRUE(all.intersects({x, y, 1, 1})) << x << ", " << y;
            }
        }
    }
    static StrokeList without(StrokeList strokes, CGFloat width) {
        strokes.removeIf([&](const DrawingStroke& stroke) { return stroke.lineWidth == width; });
        return strokes;
    }
    DrawingStroke pen(CGFloat width) const { return freehand({a, b}, DrawingTool::pen, width); }
    /// So many strokes one over the other, of width 1.
    StrokeList pile(std::size_t count) const {
        StrokeList strokes;
        for (std::size_t number = 0; number < count; ++number) {
            strokes.append(pen(1));
        }
        return strokes;
    }

    RecordingGraphics graphics;
    FinishedStrokesLayer layer{graphics};
    /// Of the last update and what it left to be repainted.
    Damage damage;
    const CGPoint a{10, 10};
    const CGPoint b{50, 50};
    const CGRect middle{29, 29, 2, 2};
    /// Across the view, and what lies in it.
    const DrawingStroke broad = freehand({{0, 400}, {1000, 400}}, DrawingTool::pen, 500);
    const CGRect bandOfBroad{0, 160, 1000, 480};

private:
    Widths drawn() const {
        Widths widths;
        for (const auto& drawing : graphics.drawn) {
            if (drawing.kind == Kind::stroke) {
                widths.push_back(drawing.style.lineWidth);
            }
        }
        return widths;
    }
};

TEST_F(FinishedLayer, there_is_no_bitmap_while_there_is_nothing_to_show) {
    layer.update({}, {});
    EXPECT_EQ(graphics.lastBitmap, nullptr);
}

TEST_F(FinishedLayer, a_stroke_on_top_is_drawn_alone_and_at_once) {
    StrokeList strokes{pen(3)};
    EXPECT_EQ(drawnAtOnceBy(strokes), Widths{3});
    strokes.append(pen(7));
    EXPECT_EQ(drawnAtOnceBy(strokes), Widths{7});
    EXPECT_TRUE(damage.intersects(middle));
    EXPECT_FALSE(layer.isBehind());
}

TEST_F(FinishedLayer, strokes_that_came_together_are_drawn_on_top_one_after_the_other) {
    StrokeList strokes{pen(3)};
    drawnBy(strokes);
    strokes.append(pen(5));
    strokes.append(pen(4));
    EXPECT_EQ(drawnAtOnceBy(strokes), (Widths{5, 4}));
    EXPECT_FALSE(layer.isBehind());
}

TEST_F(FinishedLayer, a_stroke_in_the_place_of_one_that_was_undone_is_drawn_at_once) {
    StrokeList strokes{pen(3)};
    const StrokeList before = strokes;
    strokes.append(pen(5));
    drawnBy(strokes);
    strokes = before;
    strokes.append(pen(7));
    EXPECT_EQ(drawnAtOnceBy(strokes), Widths{7});
    EXPECT_EQ(repainted(), (Widths{3, 7}));
}

TEST_F(FinishedLayer, a_stroke_under_a_highlighter_stroke_is_seen_at_once_and_then_below_it) {
    StrokeList strokes{freehand({a, b}, DrawingTool::highlighter, 3)};
    drawnBy(strokes);
    strokes.append(pen(7));
    EXPECT_EQ(drawnAtOnceBy(strokes), Widths{7});
    EXPECT_EQ(repainted(), (Widths{7, 3}));
}

TEST_F(FinishedLayer, a_stroke_is_put_below_a_highlighter_stroke_only_where_they_meet) {
    StrokeList strokes{freehand({{300, 0}, {300, 60}}, DrawingTool::highlighter, 3)};
    drawnBy(strokes);
    strokes.append(freehand({{10, 30}, {900, 30}}, DrawingTool::pen, 7));
    drawnAtOnceBy(strokes);
    damage = {};
    EXPECT_EQ(repainted(), (Widths{7, 3}));
    EXPECT_TRUE(damage.intersects({299, 29, 2, 2}));
    EXPECT_FALSE(damage.intersects({0, 0, 280, 60}));
    EXPECT_FALSE(damage.intersects({320, 0, 600, 60}));
}

TEST_F(FinishedLayer, the_undo_of_a_clear_brings_the_places_of_highlighter_strokes_back) {
    StrokeList strokes{freehand({a, b}, DrawingTool::highlighter, 3)};
    drawnBy(strokes);
    drawnBy({});
    drawnBy(strokes);
    strokes.append(pen(7));
    EXPECT_EQ(drawnBy(strokes), (Widths{7, 7, 3}));
}

TEST_F(FinishedLayer, a_stroke_apart_from_every_highlighter_stroke_is_drawn_alone) {
    StrokeList strokes{freehand({{500, 500}, {600, 600}}, DrawingTool::highlighter, 3)};
    drawnBy(strokes);
    strokes.append(pen(7));
    EXPECT_EQ(drawnBy(strokes), Widths{7});
}

TEST_F(FinishedLayer, a_stroke_that_goes_is_cleared_where_it_stood_and_nowhere_else) {
    StrokeList strokes{pen(3), freehand({{500, 500}, {600, 600}}, DrawingTool::pen, 5)};
    drawnBy(strokes);
    EXPECT_TRUE(drawnBy(without(strokes, 5)).empty());
    EXPECT_TRUE(damage.intersects({550, 550, 1, 1}));
    EXPECT_FALSE(damage.intersects({0, 0, 100, 100}));
    EXPECT_EQ(graphics.drawn.back().kind, Kind::bitmap);
    EXPECT_EQ(graphics.drawn[graphics.drawn.size() - 2].kind, Kind::clear);
}

TEST_F(FinishedLayer, the_old_picture_stays_until_the_new_one_is_whole) {
    StrokeList strokes = pile(500);
    strokes.append(pen(2));
    drawnBy(strokes);
    EXPECT_TRUE(drawnAtOnceBy(without(strokes, 2)).empty());
    EXPECT_TRUE(damage.isEmpty());
    EXPECT_TRUE(layer.repaintStep().isEmpty());
    ASSERT_TRUE(layer.isBehind());
    stepsToTheEnd();
    EXPECT_TRUE(damage.intersects(middle));
    EXPECT_EQ(graphics.drawn.back().kind, Kind::bitmap);
}

TEST_F(FinishedLayer, a_large_picture_is_shown_in_small_pieces_from_the_top) {
    const StrokeList before = belowBroad();
    EXPECT_TRUE(drawnAtOnceBy(before).empty());
    graphics.drawn.clear();
    expectPiecesOf(bandOfBroad, pieces());
}

TEST_F(FinishedLayer, a_piece_is_brought_into_the_bitmap_no_sooner_than_it_is_shown) {
    const StrokeList before = belowBroad();
    layer.update(before, {});
    while (layer.isBehind()) {
        graphics.drawn.clear();
        const Damage piece = layer.repaintStep();
        for (const auto& drawing : graphics.drawn) {
            if (drawing.kind == Kind::clear) {
                EXPECT_TRUE(piece.intersects(drawing.rect));
            }
        }
        EXPECT_FALSE(graphics.drawn.empty());
    }
}

TEST_F(FinishedLayer, a_stroke_drawn_while_a_picture_is_brought_over_is_left_alone_by_it) {
    const StrokeList before = belowBroad();
    layer.update(before, {});
    const Damage first = layer.repaintStep();
    ASSERT_TRUE(layer.isBehind());
    StrokeList strokes = before;
    strokes.append(freehand({{500, 200}, {500, 600}}, DrawingTool::pen, 9));
    EXPECT_EQ(drawnAtOnceBy(strokes), Widths{9});
    EXPECT_FALSE(first.intersects({499, 399, 2, 2}));
    // Until it is drawn once more, after the picture that knows nothing of it.
    graphics.drawn.clear();
    int clearsBefore = 0;
    Widths widths;
    while (layer.isBehind()) {
        layer.repaintStep();
        for (const auto& drawing : std::exchange(graphics.drawn, {})) {
            if (drawing.kind == Kind::stroke) {
                widths.push_back(drawing.style.lineWidth);
            }
            const bool isOver = drawing.rect.intersects({499, 399, 2, 2});
            clearsBefore += drawing.kind == Kind::clear && isOver && widths.empty() ? 1 : 0;
        }
    }
    EXPECT_EQ(widths, Widths{9});
    EXPECT_EQ(clearsBefore, 0);
}

TEST_F(FinishedLayer, a_clear_and_its_undo_are_shown_in_small_pieces_from_the_top) {
    const StrokeList strokes{broad};
    drawnBy(strokes);
    EXPECT_TRUE(drawnAtOnceBy({}).empty());
    EXPECT_TRUE(damage.isEmpty());
    expectPiecesOf(bandOfBroad, pieces());
    EXPECT_TRUE(drawnAtOnceBy(strokes).empty());
    EXPECT_TRUE(damage.isEmpty());
    expectPiecesOf(bandOfBroad, pieces());
}

TEST_F(FinishedLayer, a_clear_owes_what_an_undone_one_has_not_shown_yet) {
    const StrokeList strokes{broad};
    drawnBy(strokes);
    layer.update({}, {});
    layer.repaintStep();
    layer.update(strokes, {});
    layer.repaintStep();
    layer.update({}, {});
    expectPiecesOf(bandOfBroad, pieces());
}

TEST_F(FinishedLayer, no_step_draws_more_than_it_may) {
    StrokeList strokes = pile(500);
    strokes.append(pen(2));
    drawnBy(strokes);
    layer.update(without(strokes, 2), {});
    for (int step = 0; step < 7; ++step) {
        graphics.drawn.clear();
        layer.repaintStep();
        EXPECT_EQ(graphics.drawn.size(), 32U);
    }
    EXPECT_EQ(repainted().size(), 500U - 7 * 32);
}

TEST_F(FinishedLayer, no_step_looks_at_more_strokes_than_it_may) {
    StrokeList strokes{freehand({{500, 500}, {600, 600}}, DrawingTool::pen, 2)};
    for (int number = 0; number < 10000; ++number) {
        strokes.append(pen(1));
    }
    drawnBy(strokes);
    layer.update(without(strokes, 2), {});
    EXPECT_EQ(stepsToTheEnd(), 10);
}

TEST_F(FinishedLayer, a_stroke_drawn_during_a_repaint_is_seen_at_once_and_stays) {
    const CGRect place{399, 9, 2, 2};
    StrokeList strokes = pile(500);
    strokes.append(freehand({a, {800, 10}}, DrawingTool::pen, 2));
    drawnBy(strokes);
    strokes = without(strokes, 2);
    layer.update(strokes, {});
    layer.repaintStep();
    strokes.append(freehand({{300, 10}, {500, 10}}, DrawingTool::pen, 9));
    EXPECT_EQ(drawnAtOnceBy(strokes), Widths{9});
    // The repaint under way knows nothing of it, so it must leave its place alone.
    Damage first;
    while (first.isEmpty()) {
        first = layer.repaintStep();
    }
    EXPECT_TRUE(first.intersects({100, 9, 2, 2}));
    EXPECT_TRUE(first.intersects({700, 9, 2, 2}));
    EXPECT_FALSE(first.intersects(place));
    EXPECT_EQ(repainted(), Widths{9});
    EXPECT_TRUE(damage.intersects(place));
}

TEST_F(FinishedLayer, what_changes_during_a_repaint_is_repainted_after_it) {
    StrokeList strokes = pile(500);
    strokes.append(pen(2));
    strokes.append(freehand({{500, 500}, {600, 600}}, DrawingTool::pen, 3));
    drawnBy(strokes);
    layer.update(without(strokes, 2), {});
    layer.repaintStep();
    EXPECT_TRUE(drawnAtOnceBy(without(without(strokes, 2), 3)).empty());
    Damage first;
    while (first.isEmpty()) {
        first = layer.repaintStep();
    }
    EXPECT_TRUE(first.intersects(middle));
    EXPECT_FALSE(first.intersects({550, 550, 1, 1}));
    EXPECT_TRUE(repainted().empty());
    EXPECT_TRUE(damage.intersects({550, 550, 1, 1}));
}

TEST_F(FinishedLayer, changes_that_follow_each_other_fast_hold_up_no_repaint) {
    const StrokeList strokes = pile(500);
    const StrokeRef gone = StrokeList{pen(2)}.ref(0);
    drawnBy(strokes);
    int shown = 0;
    for (int frame = 0; frame < 100; ++frame) {
        layer.update(strokes, {{gone, 1 - frame / 100.0}});
        shown += layer.repaintStep().isEmpty() ? 0 : 1;
    }
    EXPECT_EQ(shown, 100 / 16);
}

TEST_F(FinishedLayer, a_clear_during_a_repaint_ends_it_and_clears_what_it_left) {
    StrokeList strokes = pile(500);
    strokes.append(freehand({{500, 500}, {600, 600}}, DrawingTool::pen, 2));
    drawnBy(strokes);
    layer.update(without(strokes, 2), {});
    EXPECT_TRUE(drawnBy({}).empty());
    EXPECT_TRUE(damage.intersects({550, 550, 1, 1})) << "what was undone is still on the screen";
    EXPECT_TRUE(damage.intersects(middle));
}

TEST_F(FinishedLayer, the_undo_of_a_clear_goes_on_with_what_the_clear_broke_off) {
    StrokeList strokes = pile(500);
    strokes.append(pen(2));
    drawnBy(strokes);
    strokes = without(strokes, 2);
    layer.update(strokes, {});
    layer.repaintStep();
    layer.update({}, {});
    EXPECT_TRUE(drawnAtOnceBy(strokes).empty());
    EXPECT_EQ(repainted(), Widths(500, 1));
}

TEST_F(FinishedLayer, a_stroke_that_was_shortened_has_its_place_painted_anew) {
    StrokeList strokes{freehand({a, b, {90, 10}})};
    drawnBy(strokes);
    DrawingStroke shortened = strokes[0];
    shortened.points = freehand({b, {90, 10}}).points;
    strokes.replace(0, shortened);
    EXPECT_EQ(drawnBy(strokes), Widths{4});
    EXPECT_TRUE(damage.intersects({15, 15, 1, 1}));
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
    drawnBy(strokes);
    EXPECT_TRUE(damage.intersects({400, 99, 100, 2}));
    EXPECT_FALSE(damage.intersects({0, 0, 340, 700}));
    EXPECT_FALSE(damage.intersects({560, 0, 440, 700}));
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
    drawnBy(whole);
    for (const StrokeList& strokes : {gaps, whole}) {
        drawnBy(strokes);
        EXPECT_TRUE(damage.intersects({200, 99, 50, 2}));
        EXPECT_TRUE(damage.intersects({600, 99, 50, 2}));
        EXPECT_FALSE(damage.intersects({300, 99, 240, 2}));
    }
}

TEST_F(FinishedLayer, a_stroke_that_came_back_into_the_middle_has_its_place_painted_anew) {
    const StrokeList before{pen(1), pen(2)};
    drawnBy(without(before, 1));
    EXPECT_TRUE(drawnAtOnceBy(before).empty());
    EXPECT_EQ(repainted(), (Widths{1, 2}));
}

TEST_F(FinishedLayer, the_same_strokes_again_draw_and_damage_nothing) {
    const StrokeList strokes{pen(3)};
    drawnBy(strokes);
    EXPECT_TRUE(drawnBy(strokes).empty());
    EXPECT_TRUE(damage.isEmpty());
}

TEST_F(FinishedLayer, the_undo_of_a_clear_draws_nothing_anew) {
    const StrokeList strokes{pen(3), freehand({b, {90, 90}})};
    drawnBy(strokes);
    const auto* bitmap = graphics.lastBitmap;
    drawnBy({});
    EXPECT_TRUE(drawnBy(strokes).empty());
    EXPECT_EQ(graphics.lastBitmap, bitmap);
    drawnBy({});
    damage = {};
    EXPECT_TRUE(drawnBy(strokes).empty());
    EXPECT_TRUE(damage.intersects(middle));
    RecordingContext screen;
    layer.draw(screen, {0, 0, 9, 9});
    ASSERT_EQ(screen.drawings.size(), 1U);
    EXPECT_EQ(screen.drawings[0].kind, Kind::bitmap);
}

TEST_F(FinishedLayer, a_stroke_drawn_and_undone_after_a_clear_does_not_cost_what_was_cleared) {
    const StrokeList strokes{pen(3), freehand({b, {90, 90}})};
    drawnBy(strokes);
    drawnBy({});
    EXPECT_EQ(drawnBy({pen(5)}), Widths{5});
    drawnBy({});
    EXPECT_TRUE(drawnBy(strokes).empty());
}

TEST_F(FinishedLayer, what_was_cleared_is_painted_anew_for_a_new_size_or_a_fade) {
    const StrokeList strokes{pen(3)};
    const StrokeRef gone = StrokeList{pen(2)}.ref(0);
    drawnBy(strokes);
    drawnBy({});
    layer.layout({300, 200}, 2);
    EXPECT_EQ(drawnBy(strokes), Widths{3});
    drawnBy({});
    drawnBy(strokes, {{gone, 0.5}});
    EXPECT_EQ(drawnBy(strokes), Widths{3}) << "the fade has ended";
}

TEST_F(FinishedLayer, a_picture_with_a_fading_stroke_is_not_put_aside) {
    const StrokeList strokes{pen(3)};
    const StrokeRef gone = StrokeList{pen(2)}.ref(0);
    drawnBy(strokes, {{gone, 0.5}});
    drawnBy({});
    EXPECT_EQ(drawnBy(strokes), Widths{3});
}

TEST_F(FinishedLayer, a_new_size_or_scale_paints_everything_anew_and_the_same_one_nothing) {
    const StrokeList strokes{pen(3)};
    drawnBy(strokes);
    layer.layout({300, 200}, 1);
    EXPECT_EQ(drawnBy(strokes), Widths{3});
    layer.layout({300, 200}, 2);
    EXPECT_EQ(drawnBy(strokes), Widths{3});
    EXPECT_EQ(graphics.lastBitmap->size(), (CGSize{300, 200}));
    EXPECT_EQ(graphics.lastBitmap->scale(), 2);
    layer.layout({300, 200}, 2);
    EXPECT_TRUE(drawnBy(strokes).empty());
}

TEST_F(FinishedLayer, a_stroke_that_comes_while_another_begins_or_ends_to_fade_draws_both_anew) {
    StrokeList strokes{pen(1)};
    const StrokeRef fading = StrokeList{pen(2)}.ref(0);
    drawnBy(strokes);
    strokes.append(pen(3));
    drawnAtOnceBy(strokes, {{fading, 0.5}});
    EXPECT_EQ(repainted(), (Widths{2, 1, 3}));
    strokes.append(pen(4));
    drawnAtOnceBy(strokes);
    EXPECT_EQ(repainted(), (Widths{1, 3, 4}));
}

TEST_F(FinishedLayer, while_a_stroke_fades_its_place_is_painted_anew_and_once_more_at_the_end) {
    StrokeList strokes{pen(1), pen(2)};
    drawnBy(strokes);
    const StrokeRef gone = strokes.ref(0);
    strokes = without(strokes, 1);
    EXPECT_EQ(drawnBy(strokes, {{gone, 0.5}}), (Widths{1, 2}));
    EXPECT_EQ(drawnBy(strokes, {{gone, 0.25}}), (Widths{1, 2}));
    EXPECT_EQ(drawnBy(strokes), Widths{2});
    EXPECT_TRUE(drawnBy(strokes).empty());
}

} // namespace
} // namespace quillon::test
