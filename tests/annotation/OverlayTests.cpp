#include "annotation/TestStrokes.h"
#include "model/NotificationNames.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

class Overlay : public testing::Test {
protected:
    Overlay() {
        overlay.setUpdateRequest([this] { ++updateRequests; });
        overlay.layout({1000, 700}, 1);
        update();
    }

    AppSettings& settings() { return AppSettings::shared(); }
    DrawingState& state() { return overlay.drawingState(); }
    Damage update() { return overlay.takeDamage(); }
    void annotate(bool whiteboard = false) {
        settings().isAnnotationEnabled = true;
        settings().isWhiteboardMode = whiteboard;
        update();
    }
    void drag(CGPoint from, CGPoint to) {
        overlay.mouseDown(from);
        overlay.mouseDragged(to);
        overlay.mouseUp(to);
        update();
    }
    void post(std::string_view name) { host.notificationCenter().post(name); }
    /// What is painted over a place in the middle.
    std::vector<Drawing> painted() {
        RecordingContext context;
        overlay.paint(context, {0, 0, 1000, 700});
        return context.drawings;
    }

    FakeHost host;
    OverlayContainerView overlay{AppSettings::shared()};
    int updateRequests = 0;
};

TEST_F(Overlay, with_annotation_off_a_drag_draws_nothing) {
    drag({10, 10}, {50, 50});
    EXPECT_TRUE(state().strokes->empty());
}

TEST_F(Overlay, with_annotation_on_the_lower_canvas_takes_the_pointer) {
    annotate();
    drag({10, 10}, {50, 50});
    EXPECT_EQ(state().strokes->size(), 1U);
    EXPECT_EQ(state().undoStack->size(), 1U);
    EXPECT_EQ(overlay.upperCanvas(), nullptr);
}

TEST_F(Overlay, in_whiteboard_mode_a_second_canvas_stands_and_takes_the_pointer) {
    annotate(true);
    ASSERT_NE(overlay.upperCanvas(), nullptr);
    EXPECT_TRUE(overlay.upperCanvas()->isWhiteboardMode);
    EXPECT_TRUE(overlay.lowerCanvas().isWhiteboardMode);
    settings().selectedTool = DrawingTool::text;
    overlay.mouseDown({10, 10});
    EXPECT_TRUE(overlay.upperCanvas()->isEditingText());
    EXPECT_FALSE(overlay.lowerCanvas().isEditingText());
}

TEST_F(Overlay, in_whiteboard_mode_every_stroke_is_seen_twice_over_a_white_sheet) {
    annotate(true);
    host.mainQueue.advance(1);
    drag({10, 10}, {50, 50});
    const auto drawings = painted();
    ASSERT_EQ(drawings.size(), 3U);
    EXPECT_EQ(drawings[0].kind, Drawing::Kind::fill);
    EXPECT_EQ(drawings[0].color, Color::white.opacity(0.9));
    EXPECT_EQ(drawings[1].kind, Drawing::Kind::bitmap);
    EXPECT_EQ(drawings[2].kind, Drawing::Kind::bitmap);
}

TEST_F(Overlay, the_stroke_in_progress_lies_over_all_finished_ones_of_its_canvas) {
    using Kind = Drawing::Kind;
    const auto kinds = [&] {
        std::vector<Kind> result;
        for (const auto& drawing : painted()) {
            result.push_back(drawing.kind);
        }
        return result;
    };
    annotate();
    drag({10, 10}, {50, 50});
    settings().selectedTool = DrawingTool::eraser;
    overlay.mouseDown({10, 10});
    overlay.mouseDragged({90, 90});
    update();
    EXPECT_EQ(kinds(), (std::vector<Kind>{Kind::bitmap, Kind::stroke}));
    EXPECT_EQ(painted()[1].color, Color::white.opacity(0.5));
    EXPECT_EQ(painted()[1].style, (StrokeStyle{20, LineCap::round, LineJoin::round}));
    settings().isWhiteboardMode = true;
    update();
    host.mainQueue.advance(1);
    update();
    EXPECT_EQ(kinds(), (std::vector<Kind>{Kind::fill, Kind::bitmap, Kind::stroke, Kind::bitmap,
                                          Kind::stroke}));
}

TEST_F(Overlay, the_whiteboard_fades_in_and_out) {
    annotate(true);
    host.mainQueue.advance(0.1);
    update();
    const double coming = painted()[0].color.resolved().alpha;
    EXPECT_GT(coming, 0);
    EXPECT_LT(coming, 0.9);
    host.mainQueue.advance(1);
    update();
    EXPECT_DOUBLE_EQ(painted()[0].color.resolved().alpha, 0.9);
    settings().isWhiteboardMode = false;
    update();
    host.mainQueue.advance(0.1);
    update();
    EXPECT_LT(painted()[0].color.resolved().alpha, 0.9);
    host.mainQueue.advance(1);
    update();
    EXPECT_TRUE(painted().empty());
    EXPECT_TRUE(host.mainQueue.isIdle());
}

TEST_F(Overlay, with_annotation_off_the_strokes_stay_and_the_whiteboard_goes) {
    annotate(true);
    drag({10, 10}, {50, 50});
    settings().isAnnotationEnabled = false;
    update();
    host.mainQueue.advance(1);
    update();
    const auto drawings = painted();
    ASSERT_EQ(drawings.size(), 1U);
    EXPECT_EQ(drawings[0].kind, Drawing::Kind::bitmap);
    EXPECT_EQ(state().strokes->size(), 1U);
}

TEST_F(Overlay, a_drag_goes_on_to_its_end_when_annotation_goes_off_on_its_way) {
    for (const bool whiteboard : {false, true}) {
        annotate(whiteboard);
        overlay.mouseDown({10, 10});
        overlay.mouseDragged({20, 20});
        settings().isAnnotationEnabled = false;
        update();
        EXPECT_TRUE(state().currentStroke.get());
        overlay.mouseUp({30, 30});
        update();
        EXPECT_FALSE(state().currentStroke.get());
        EXPECT_EQ(overlay.upperCanvas(), nullptr);
    }
    EXPECT_EQ(state().strokes->size(), 2U);
}

TEST_F(Overlay, text_typed_on_the_whiteboard_is_kept_when_annotation_goes_off) {
    annotate(true);
    settings().selectedTool = DrawingTool::text;
    overlay.mouseDown({10, 10});
    overlay.mouseUp({10, 10});
    overlay.textField()->text.set("kept");
    settings().isAnnotationEnabled = false;
    update();
    ASSERT_EQ(state().strokes->size(), 1U);
    EXPECT_EQ(state().strokes.get()[0].textContent, "kept");
    EXPECT_FALSE(overlay.textField());
}

TEST_F(Overlay, text_typed_below_the_whiteboard_is_kept_by_a_press_on_it) {
    annotate();
    settings().selectedTool = DrawingTool::text;
    overlay.mouseDown({10, 10});
    overlay.mouseUp({10, 10});
    overlay.textField()->text.set("kept");
    annotate(true);
    ASSERT_TRUE(overlay.textField());
    EXPECT_EQ(overlay.textField()->text.get(), "kept");
    overlay.mouseDown({200, 200});
    overlay.mouseUp({200, 200});
    ASSERT_EQ(state().strokes->size(), 1U);
    EXPECT_EQ(state().strokes.get()[0].textContent, "kept");
    ASSERT_TRUE(overlay.textField());
    EXPECT_EQ(overlay.textField()->center, (CGPoint{200, 200}));
    EXPECT_EQ(overlay.textField()->text.get(), "");
}

TEST_F(Overlay, the_fields_of_the_two_canvases_are_never_taken_for_each_other) {
    annotate();
    settings().selectedTool = DrawingTool::text;
    overlay.mouseDown({10, 10});
    const int below = overlay.textField()->identity;
    annotate(true);
    overlay.mouseDown({200, 200});
    EXPECT_NE(overlay.textField()->identity, below);
}

TEST_F(Overlay, tool_colour_and_width_are_those_of_the_settings_at_the_moment) {
    annotate();
    settings().selectedTool = DrawingTool::highlighter;
    settings().selectedColor = Color(0.5, 0.25, 0.125);
    settings().lineWidth = 9.0;
    drag({10, 10}, {50, 50});
    const auto& stroke = state().strokes.get()[0];
    EXPECT_EQ(stroke.tool, DrawingTool::highlighter);
    EXPECT_EQ(stroke.viewColor(), Color(0.5, 0.25, 0.125));
    EXPECT_EQ(stroke.lineWidth, 9);
}

TEST_F(Overlay, a_setting_changed_on_the_way_holds_for_the_next_move_and_the_release) {
    annotate();
    overlay.mouseDown({10, 10});
    overlay.mouseDragged({20, 20});
    settings().lineWidth = 9.0;
    overlay.mouseDragged({10, 10});
    EXPECT_EQ(state().currentStroke.get()->lineWidth, 9);
    overlay.mouseDragged({20, 20});
    settings().selectedTool = DrawingTool::rectangle;
    overlay.mouseUp({20, 20});
    EXPECT_TRUE(state().strokes->empty());
    EXPECT_FALSE(state().currentStroke.get());
}

TEST_F(Overlay, a_canvas_kept_for_its_drag_goes_after_the_release) {
    annotate(true);
    settings().selectedTool = DrawingTool::text;
    overlay.mouseDown({10, 10});
    settings().isAnnotationEnabled = false;
    update();
    ASSERT_NE(overlay.upperCanvas(), nullptr);
    const int before = updateRequests;
    overlay.mouseUp({10, 10});
    EXPECT_GT(updateRequests, before);
    update();
    EXPECT_EQ(overlay.upperCanvas(), nullptr);
}

TEST_F(Overlay, the_eraser_edits_in_place_without_an_undo_step) {
    annotate();
    drag({10, 10}, {50, 50});
    settings().selectedTool = DrawingTool::eraser;
    drag({5, 5}, {48, 48});
    EXPECT_TRUE(state().strokes->empty());
    EXPECT_EQ(state().undoStack->size(), 1U);
    EXPECT_FALSE(state().currentStroke.get());
}

TEST_F(Overlay, a_click_with_the_eraser_does_nothing) {
    annotate();
    drag({10, 10}, {50, 50});
    settings().selectedTool = DrawingTool::eraser;
    overlay.mouseDown({10, 10});
    overlay.mouseUp({10, 10});
    EXPECT_EQ(state().strokes->size(), 1U);
}

TEST_F(Overlay, the_notifications_clear_undo_and_redo) {
    annotate();
    drag({10, 10}, {50, 50});
    post(NotificationName::clearAnnotations);
    EXPECT_TRUE(state().strokes->empty());
    EXPECT_EQ(overlay.textEditorResetID(), 1);
    post(NotificationName::undoAnnotation);
    EXPECT_EQ(state().strokes->size(), 1U);
    post(NotificationName::redoAnnotation);
    EXPECT_TRUE(state().strokes->empty());
}

TEST_F(Overlay, a_changed_tool_colour_or_width_announced_cancels_the_stroke_in_progress) {
    annotate();
    for (const auto name : {NotificationName::toolChanged, NotificationName::colorChanged,
                            NotificationName::lineWidthChanged}) {
        overlay.mouseDown({10, 10});
        ASSERT_TRUE(state().currentStroke.get());
        post(name);
        EXPECT_FALSE(state().currentStroke.get());
        overlay.mouseUp({10, 10});
    }
}

TEST_F(Overlay, clearing_drops_the_text_being_typed_and_then_empties_the_canvas) {
    annotate();
    drag({10, 10}, {50, 50});
    settings().selectedTool = DrawingTool::text;
    overlay.mouseDown({100, 100});
    overlay.textField()->text.set("lost");
    bool stoodWhenEmptied = true;
    const auto subscription = state().strokes.sinkDroppingFirst(
        [&](const StrokeList&) { stoodWhenEmptied = overlay.textField().has_value(); });
    overlay.clearAllAnnotations();
    EXPECT_FALSE(stoodWhenEmptied);
    EXPECT_FALSE(overlay.textField());
    EXPECT_TRUE(state().strokes->empty());
    EXPECT_EQ(state().undoStack->size(), 2U);
}

class AutoErase : public Overlay {
protected:
    AutoErase() {
        annotate();
        settings().autoEraseTimer = AutoEraseTimer::twoSeconds;
    }
};

TEST_F(AutoErase, a_stroke_goes_two_seconds_after_its_completion_and_an_undo_keeps_it_for_good) {
    drag({10, 10}, {50, 50});
    host.mainQueue.advance(1.99);
    EXPECT_EQ(state().strokes->size(), 1U);
    host.mainQueue.advance(0.02);
    EXPECT_TRUE(state().strokes->empty());
    EXPECT_TRUE(state().canUndo());
    state().undo();
    host.mainQueue.advance(20);
    EXPECT_EQ(state().strokes->size(), 1U);
}

TEST_F(AutoErase, a_stroke_fades_over_half_a_second) {
    drag({10, 10}, {50, 50});
    host.mainQueue.advance(2);
    update();
    host.mainQueue.advance(0.25);
    EXPECT_FALSE(update().isEmpty());
    EXPECT_EQ(painted().size(), 1U);
    EXPECT_NEAR(host.graphics.lastBitmap->context.drawings.back().receivedOpacity,
                1 - TimingCurve::easeOut.progressAt(0.5), 1e-9);
    host.mainQueue.advance(0.24);
    update();
    EXPECT_EQ(painted().size(), 1U);
    host.mainQueue.advance(0.02);
    EXPECT_FALSE(update().isEmpty());
    EXPECT_TRUE(painted().empty());
    host.mainQueue.advance(1);
    EXPECT_TRUE(update().isEmpty());
    EXPECT_TRUE(host.mainQueue.isIdle());
}

TEST_F(AutoErase, an_undo_within_the_fade_shows_the_stroke_in_full_at_once) {
    drag({10, 10}, {50, 50});
    host.mainQueue.advance(2);
    update();
    host.mainQueue.advance(0.25);
    update();
    state().undo();
    host.graphics.lastBitmap->context.drawings.clear();
    update();
    int strokes = 0;
    for (const auto& drawing : host.graphics.lastBitmap->context.drawings) {
        if (drawing.kind == Drawing::Kind::stroke) {
            ++strokes;
            EXPECT_EQ(drawing.receivedOpacity, 1);
        }
    }
    EXPECT_EQ(strokes, 1);
    host.mainQueue.advance(1);
    EXPECT_TRUE(host.mainQueue.isIdle());
}

TEST_F(AutoErase, strokes_that_fade_together_keep_their_order) {
    settings().autoEraseTimer = AutoEraseTimer::fiveSeconds;
    settings().lineWidth = 3.0;
    drag({10, 10}, {50, 50});
    settings().autoEraseTimer = AutoEraseTimer::twoSeconds;
    settings().lineWidth = 6.0;
    host.mainQueue.advance(2.9);
    drag({10, 10}, {50, 50});
    host.mainQueue.advance(2.2);
    host.graphics.lastBitmap->context.drawings.clear();
    update();
    std::vector<CGFloat> widths;
    for (const auto& drawing : host.graphics.lastBitmap->context.drawings) {
        if (drawing.kind == Drawing::Kind::stroke) {
            widths.push_back(drawing.style.lineWidth);
        }
    }
    ASSERT_GE(widths.size(), 2U);
    EXPECT_EQ(widths[0], 3);
    EXPECT_EQ(widths[1], 6);
}

TEST_F(AutoErase, a_task_for_a_stroke_that_was_undone_still_costs_a_step_and_the_redo) {
    drag({10, 10}, {50, 50});
    state().undo();
    ASSERT_TRUE(state().canRedo());
    host.mainQueue.advance(2.1);
    EXPECT_EQ(state().undoStack->size(), 1U);
    EXPECT_FALSE(state().canRedo());
}

TEST_F(AutoErase, the_setting_switched_off_afterwards_leaves_the_old_deadline) {
    drag({10, 10}, {50, 50});
    settings().autoEraseTimer = AutoEraseTimer::off;
    host.mainQueue.advance(2.1);
    EXPECT_TRUE(state().strokes->empty());
}

TEST_F(AutoErase, clearing_and_leaving_annotation_leave_the_old_deadline) {
    drag({10, 10}, {50, 50});
    post(NotificationName::clearAnnotations);
    settings().isAnnotationEnabled = false;
    update();
    state().undo();
    ASSERT_EQ(state().strokes->size(), 1U);
    host.mainQueue.advance(2.1);
    EXPECT_TRUE(state().strokes->empty());
    EXPECT_FALSE(state().canRedo());
}

TEST_F(AutoErase, a_text_and_a_highlighter_stroke_have_deadlines_too) {
    settings().selectedTool = DrawingTool::highlighter;
    drag({10, 10}, {50, 50});
    settings().selectedTool = DrawingTool::text;
    overlay.mouseDown({100, 100});
    overlay.mouseUp({100, 100});
    overlay.textField()->text.set("short");
    overlay.textField()->onSubmit();
    ASSERT_EQ(state().strokes->size(), 2U);
    host.mainQueue.advance(2.1);
    EXPECT_TRUE(state().strokes->empty());
}

TEST_F(AutoErase, the_eraser_gets_no_task) {
    settings().selectedTool = DrawingTool::eraser;
    drag({10, 10}, {50, 50});
    EXPECT_TRUE(host.mainQueue.isIdle());
}

TEST_F(AutoErase, each_stroke_has_a_deadline_of_its_own) {
    drag({10, 10}, {50, 50});
    host.mainQueue.advance(1);
    settings().selectedTool = DrawingTool::rectangle;
    drag({100, 100}, {150, 150});
    host.mainQueue.advance(1.1);
    ASSERT_EQ(state().strokes->size(), 1U);
    EXPECT_TRUE(state().strokes.get()[0].isShape);
    host.mainQueue.advance(1);
    EXPECT_TRUE(state().strokes->empty());
}

TEST_F(AutoErase, a_task_that_outlives_the_view_does_nothing) {
    {
        OverlayContainerView other(settings());
        other.layout({100, 100}, 1);
        other.takeDamage();
        other.mouseDown({1, 1});
        other.mouseDragged({9, 9});
        other.mouseUp({9, 9});
    }
    host.mainQueue.advance(3);
    EXPECT_TRUE(state().strokes->empty());
}

class ToolbarPlace : public Overlay {};

TEST_F(ToolbarPlace, a_toolbar_never_placed_stands_150_from_the_right_and_50_from_the_top) {
    annotate();
    EXPECT_TRUE(overlay.toolbar() != nullptr);
    EXPECT_EQ(overlay.toolbarPosition(), (CGPoint{850, 50}));
    EXPECT_EQ(settings().toolbarPosition.get(), ToolbarPosition::defaultPosition);
}

TEST_F(ToolbarPlace, a_saved_place_is_used_as_it_stands_also_off_the_screen) {
    settings().toolbarPosition = ToolbarPosition{3000, -20};
    annotate();
    EXPECT_EQ(overlay.toolbarPosition(), (CGPoint{3000, -20}));
}

TEST_F(ToolbarPlace, it_is_hidden_with_annotation_or_by_the_setting_and_placed_anew_each_time) {
    EXPECT_FALSE(overlay.toolbar() != nullptr);
    annotate();
    settings().showFloatingToolbar = false;
    update();
    EXPECT_FALSE(overlay.toolbar() != nullptr);
    settings().toolbarPosition = ToolbarPosition{300, 200};
    settings().showFloatingToolbar = true;
    update();
    EXPECT_EQ(overlay.toolbarPosition(), (CGPoint{300, 200}));
}

TEST_F(ToolbarPlace, a_drag_begins_after_10_points_and_brings_the_centre_to_the_pointer) {
    annotate();
    overlay.controlsMouseDown({840, 40});
    overlay.controlsMouseDragged({846, 47});
    EXPECT_FALSE(overlay.isDraggingToolbar());
    EXPECT_EQ(overlay.toolbarPosition(), (CGPoint{850, 50}));
    overlay.controlsMouseDragged({846, 48});
    EXPECT_TRUE(overlay.isDraggingToolbar());
    EXPECT_EQ(overlay.toolbarPosition(), (CGPoint{846, 48}));
    overlay.controlsMouseDragged({841, 41});
    EXPECT_EQ(overlay.toolbarPosition(), (CGPoint{841, 41}));
}

TEST_F(ToolbarPlace, the_place_is_written_once_at_the_end_of_the_drag) {
    annotate();
    host.userDefaults.writes.clear();
    overlay.controlsMouseDown({840, 40});
    overlay.controlsMouseDragged({500, 300});
    overlay.controlsMouseDragged({510, 310});
    EXPECT_TRUE(host.userDefaults.writes.empty());
    overlay.controlsMouseUp({510, 310});
    EXPECT_FALSE(overlay.isDraggingToolbar());
    EXPECT_EQ(host.userDefaults.writes, (std::vector<std::string>{"toolbarPosition"}));
    EXPECT_EQ(settings().toolbarPosition.get(), (ToolbarPosition{510, 310}));
}

TEST_F(ToolbarPlace, a_click_on_it_writes_nothing) {
    annotate();
    host.userDefaults.writes.clear();
    overlay.controlsMouseDown({840, 40});
    overlay.controlsMouseUp({842, 41});
    EXPECT_TRUE(host.userDefaults.writes.empty());
}

TEST_F(ToolbarPlace, dragged_to_the_very_corner_it_counts_as_never_placed) {
    annotate();
    overlay.controlsMouseDown({840, 40});
    overlay.controlsMouseDragged({0, 0});
    overlay.controlsMouseUp({0, 0});
    EXPECT_EQ(overlay.toolbarPosition(), (CGPoint{0, 0}));
    settings().isAnnotationEnabled = false;
    update();
    annotate();
    EXPECT_EQ(overlay.toolbarPosition(), (CGPoint{850, 50}));
}

class OverlayDamage : public Overlay {};

TEST_F(OverlayDamage, nothing_changed_is_nothing_to_paint) {
    annotate();
    drag({10, 10}, {50, 50});
    update();
    EXPECT_TRUE(update().isEmpty());
}

TEST_F(OverlayDamage, a_change_asks_for_an_update) {
    annotate();
    const int before = updateRequests;
    overlay.mouseDown({10, 10});
    EXPECT_GT(updateRequests, before);
}

TEST_F(OverlayDamage, an_undo_damages_only_what_it_took) {
    annotate();
    drag({10, 10}, {50, 50});
    drag({500, 500}, {550, 550});
    update();
    state().undo();
    const Damage damage = update();
    EXPECT_TRUE(damage.intersects({520, 520, 10, 10}));
    EXPECT_FALSE(damage.intersects({0, 0, 100, 100}));
}

TEST_F(OverlayDamage, a_picture_asked_for_before_the_update_shows_the_stroke_as_it_now_is) {
    annotate();
    overlay.mouseDown({10, 10});
    for (int step = 1; step <= 200; ++step) {
        overlay.mouseDragged({10.0 + step, 10});
    }
    update();
    overlay.mouseDragged({10, 10});
    EXPECT_TRUE(painted().empty()) << "a stroke of one point has no picture";
    overlay.mouseDragged({10, 60});
    const auto drawings = painted();
    ASSERT_EQ(drawings.size(), 1U);
    EXPECT_EQ(drawings[0].path.points(), (std::vector<CGPoint>{{10, 10}, {10, 60}}));
}

TEST_F(OverlayDamage, what_a_picture_brought_forward_is_still_owed_by_the_update) {
    annotate();
    overlay.mouseDown({10, 10});
    overlay.mouseDragged({100, 10});
    update();
    overlay.mouseDragged({100, 300});
    painted();
    state().cancelCurrentStroke();
    painted();
    const Damage damage = update();
    EXPECT_TRUE(damage.intersects({50, 9, 1, 1}));
    EXPECT_TRUE(damage.intersects({100, 299, 1, 1}));
}

TEST_F(OverlayDamage, a_new_size_paints_everything) {
    overlay.layout({300, 200}, 2);
    EXPECT_EQ(update().bounds(), (CGRect{0, 0, 300, 200}));
}

} // namespace
} // namespace quillon::test
