#include "annotation/OverlayTest.h"
#include "model/NotificationNames.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

class Overlay : public OverlayTest {};

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
    EXPECT_EQ(drawings[0].kind, Drawing::Kind::fillRect);
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
    EXPECT_EQ(kinds(), (std::vector<Kind>{Kind::fillRect, Kind::bitmap, Kind::stroke, Kind::bitmap,
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

} // namespace
} // namespace quillon::test
