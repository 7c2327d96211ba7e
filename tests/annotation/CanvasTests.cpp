#include "annotation/TestStrokes.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

/// A canvas with a state of its own and a list of what it handed over.
class Canvas : public testing::Test {
protected:
    void drag(const std::vector<CGPoint>& places) {
        canvas.mouseDown(places.front());
        for (std::size_t index = 1; index + 1 < places.size(); ++index) {
            canvas.mouseDragged(places[index]);
        }
        canvas.mouseUp(places.back());
    }
    const std::optional<DrawingStroke>& current() { return state.currentStroke.get(); }

    FakeHost host;
    DrawingState state;
    std::vector<DrawingStroke> completed;
    std::vector<DrawingStroke> erased;
    DrawingCanvasView canvas{{
        .strokes = state.strokes.binding(),
        .currentStroke = state.currentStroke.binding(),
        .onStrokeCompleted = [this](const DrawingStroke& stroke) { completed.push_back(stroke); },
        .onEraserStroke = [this](const DrawingStroke& stroke) { erased.push_back(stroke); },
        .onTextFieldChanged = [this] { ++textFieldChanges; },
    }};
    int textFieldChanges = 0;
};

TEST_F(Canvas, a_press_and_release_at_one_place_leaves_nothing_of_the_pen) {
    drag({{10, 10}, {10, 10}});
    EXPECT_TRUE(completed.empty());
    EXPECT_FALSE(current());
}

TEST_F(Canvas, a_press_a_move_and_a_release_make_three_points_the_last_two_alike) {
    drag({{10, 10}, {20, 20}, {20, 20}});
    ASSERT_EQ(completed.size(), 1U);
    EXPECT_EQ(completed[0].cgPoints(), (std::vector<CGPoint>{{10, 10}, {20, 20}, {20, 20}}));
    EXPECT_FALSE(current());
}

TEST_F(Canvas, a_freehand_stroke_takes_tool_colour_and_width_of_the_moment) {
    canvas.selectedTool = DrawingTool::highlighter;
    canvas.selectedColor = Color(0.1, 0.2, 0.3, 0.4);
    canvas.lineWidth = 7;
    canvas.mouseDown({1, 2});
    ASSERT_TRUE(current());
    EXPECT_EQ(current()->tool, DrawingTool::highlighter);
    EXPECT_EQ(current()->color, CodableColor(Color(0.1, 0.2, 0.3, 0.4)));
    EXPECT_EQ(current()->lineWidth, 7);
    EXPECT_FALSE(current()->isShape);
    EXPECT_FALSE(current()->shapeType || current()->shapeRect || current()->shapeStartPoint ||
                 current()->shapeEndPoint || current()->textContent || current()->fontSize);
    EXPECT_EQ(current()->cgPoints(), (std::vector<CGPoint>{{1, 2}}));
}

TEST_F(Canvas, every_move_appends_a_point_also_one_to_the_same_place) {
    canvas.mouseDown({1, 1});
    canvas.mouseDragged({5, 5});
    canvas.mouseDragged({5, 5});
    EXPECT_EQ(current()->points.size(), 3U);
}

TEST_F(Canvas, back_at_its_start_a_freehand_stroke_begins_anew) {
    canvas.mouseDown({1, 1});
    const UUID first = current()->id();
    canvas.mouseDragged({50, 50});
    canvas.mouseDragged({1, 1});
    EXPECT_NE(current()->id(), first);
    EXPECT_EQ(current()->points.size(), 1U);
}

TEST_F(Canvas, the_eraser_is_at_least_20_wide_and_else_four_times_the_line) {
    canvas.selectedTool = DrawingTool::eraser;
    canvas.lineWidth = 3;
    canvas.mouseDown({1, 1});
    EXPECT_EQ(current()->lineWidth, 20);
    EXPECT_EQ(current()->color, CodableColor(Color::white.opacity(0.5)));
    canvas.mouseUp({1, 1});
    canvas.lineWidth = 8;
    canvas.mouseDown({1, 1});
    EXPECT_EQ(current()->lineWidth, 32);
}

TEST_F(Canvas, the_eraser_hands_its_stroke_over_at_the_end_and_to_nobody_else) {
    canvas.selectedTool = DrawingTool::eraser;
    drag({{1, 1}, {9, 9}, {9, 9}});
    EXPECT_EQ(erased.size(), 1U);
    EXPECT_TRUE(completed.empty());
    EXPECT_FALSE(current());
}

TEST_F(Canvas, the_stroke_and_not_the_tool_of_the_end_says_whether_it_erases) {
    canvas.selectedTool = DrawingTool::eraser;
    canvas.mouseDown({1, 1});
    canvas.mouseDragged({9, 9});
    canvas.selectedTool = DrawingTool::pen;
    canvas.mouseUp({9, 9});
    EXPECT_EQ(erased.size(), 1U);
    EXPECT_TRUE(completed.empty());

    canvas.mouseDown({1, 1});
    canvas.mouseDragged({9, 9});
    canvas.selectedTool = DrawingTool::eraser;
    canvas.mouseUp({9, 9});
    EXPECT_EQ(erased.size(), 1U);
    EXPECT_EQ(completed.size(), 1U);
}

TEST_F(Canvas, an_eraser_stroke_that_nobody_wants_just_vanishes) {
    DrawingCanvasView lone{{
        .strokes = state.strokes.binding(),
        .currentStroke = state.currentStroke.binding(),
        .onStrokeCompleted = [this](const DrawingStroke& stroke) { completed.push_back(stroke); },
        .onEraserStroke = {},
        .onTextFieldChanged = [] {},
    }};
    lone.selectedTool = DrawingTool::eraser;
    lone.mouseDown({1, 1});
    lone.mouseDragged({9, 9});
    lone.mouseUp({9, 9});
    EXPECT_TRUE(completed.empty());
    EXPECT_FALSE(current());
}

TEST_F(Canvas, a_shape_takes_tool_colour_and_width_of_the_moment) {
    canvas.selectedColor = Color(0.1, 0.2, 0.3, 0.4);
    canvas.lineWidth = 7;
    for (const auto tool :
         {DrawingTool::rectangle, DrawingTool::circle, DrawingTool::line, DrawingTool::arrow}) {
        canvas.selectedTool = tool;
        canvas.mouseDown({1, 2});
        ASSERT_TRUE(current());
        EXPECT_EQ(current()->tool, tool);
        EXPECT_TRUE(current()->isShape);
        EXPECT_EQ(current()->shapeType, shapeTypeForTool(tool));
        EXPECT_EQ(current()->color, CodableColor(Color(0.1, 0.2, 0.3, 0.4)));
        EXPECT_EQ(current()->lineWidth, 7);
        EXPECT_FALSE(current()->textContent || current()->fontSize);
        canvas.mouseUp({1, 2});
    }
}

TEST_F(Canvas, a_shape_follows_the_pointer_and_keeps_its_one_point) {
    canvas.selectedTool = DrawingTool::rectangle;
    canvas.mouseDown({50, 50});
    canvas.mouseDragged({30, 90});
    EXPECT_EQ(current()->cgShapeRect(), (CGRect{30, 50, 20, 40}));
    EXPECT_EQ(current()->cgShapeEndPoint(), (CGPoint{30, 90}));
    canvas.mouseDragged({60, 55});
    EXPECT_EQ(current()->cgShapeRect(), (CGRect{50, 50, 10, 5}));
    EXPECT_EQ(current()->cgPoints(), (std::vector<CGPoint>{{50, 50}}));
}

TEST_F(Canvas, a_shape_dragged_up_and_left_has_a_positive_size_and_keeps_its_direction) {
    canvas.selectedTool = DrawingTool::arrow;
    drag({{100, 80}, {60, 70}, {40, 30}});
    ASSERT_EQ(completed.size(), 1U);
    EXPECT_TRUE(completed[0].isShape);
    EXPECT_EQ(completed[0].shapeType, ShapeType::arrow);
    EXPECT_EQ(completed[0].cgShapeRect(), (CGRect{40, 30, 60, 50}));
    EXPECT_EQ(completed[0].cgShapeStartPoint(), (CGPoint{100, 80}));
    EXPECT_EQ(completed[0].cgShapeEndPoint(), (CGPoint{40, 30}));
    EXPECT_EQ(completed[0].cgPoints(), (std::vector<CGPoint>{{100, 80}}));
    EXPECT_FALSE(canvas.shapeStartPoint());
}

TEST_F(Canvas, before_its_first_move_a_shape_has_no_rectangle) {
    canvas.selectedTool = DrawingTool::rectangle;
    canvas.mouseDown({5, 5});
    EXPECT_FALSE(current()->shapeRect);
    EXPECT_FALSE(current()->shapeEndPoint);
    EXPECT_EQ(current()->cgShapeStartPoint(), (CGPoint{5, 5}));
}

TEST_F(Canvas, a_click_with_a_shape_completes_one_of_no_size) {
    canvas.selectedTool = DrawingTool::circle;
    drag({{5, 5}, {5, 5}});
    ASSERT_EQ(completed.size(), 1U);
    EXPECT_EQ(completed[0].cgShapeRect(), (CGRect{5, 5, 0, 0}));
}

TEST_F(Canvas, back_at_its_start_a_shape_restarts_from_there) {
    canvas.selectedTool = DrawingTool::line;
    canvas.mouseDown({5, 5});
    const UUID first = current()->id();
    canvas.mouseDragged({50, 50});
    canvas.mouseDragged({5, 5});
    EXPECT_NE(current()->id(), first);
    EXPECT_FALSE(current()->shapeRect);
}

TEST_F(Canvas, a_stroke_cancelled_from_outside_stays_cancelled_to_the_end_of_its_drag) {
    canvas.mouseDown({1, 1});
    canvas.mouseDragged({5, 5});
    state.cancelCurrentStroke();
    canvas.mouseDragged({9, 9});
    EXPECT_FALSE(current());
    canvas.mouseUp({9, 9});
    EXPECT_FALSE(current());
    EXPECT_TRUE(completed.empty());
}

TEST_F(Canvas, a_shape_cancelled_from_outside_keeps_its_start_until_the_drag_ends) {
    canvas.selectedTool = DrawingTool::rectangle;
    canvas.mouseDown({1, 1});
    state.cancelCurrentStroke();
    canvas.mouseDragged({9, 9});
    EXPECT_FALSE(current());
    EXPECT_TRUE(canvas.shapeStartPoint());
    canvas.mouseUp({9, 9});
    EXPECT_FALSE(canvas.shapeStartPoint());
    EXPECT_TRUE(completed.empty());
}

TEST_F(Canvas, a_tool_changed_in_the_middle_of_a_drag_finishes_it_in_its_own_way) {
    canvas.mouseDown({1, 1});
    canvas.mouseDragged({5, 5});
    canvas.selectedTool = DrawingTool::rectangle;
    canvas.mouseUp({9, 9});
    EXPECT_TRUE(completed.empty());
    EXPECT_FALSE(current());
}

TEST_F(Canvas, the_four_shape_tools_have_their_shapes_and_the_others_none) {
    EXPECT_EQ(shapeTypeForTool(DrawingTool::rectangle), ShapeType::rectangle);
    EXPECT_EQ(shapeTypeForTool(DrawingTool::circle), ShapeType::circle);
    EXPECT_EQ(shapeTypeForTool(DrawingTool::line), ShapeType::line);
    EXPECT_EQ(shapeTypeForTool(DrawingTool::arrow), ShapeType::arrow);
    for (const auto tool :
         {DrawingTool::pen, DrawingTool::highlighter, DrawingTool::eraser, DrawingTool::text}) {
        EXPECT_FALSE(shapeTypeForTool(tool));
    }
}

class CanvasText : public Canvas {
protected:
    CanvasText() { canvas.selectedTool = DrawingTool::text; }

    /// Opens the field and types into it as the host's field would.
    void typeAt(CGPoint place, const std::string& content) {
        canvas.mouseDown(place);
        canvas.mouseUp(place);
        const auto field = canvas.textField();
        ASSERT_TRUE(field);
        field->onAppear();
        host.mainQueue.run();
        field->text.set(content);
    }
};

TEST_F(CanvasText, a_press_opens_a_field_of_200_points_in_24_with_its_centre_there) {
    canvas.selectedColor = Color::green;
    canvas.mouseDown({70, 80});
    const auto field = canvas.textField();
    ASSERT_TRUE(field);
    EXPECT_EQ(field->center, (CGPoint{70, 80}));
    EXPECT_EQ(field->width, 200);
    EXPECT_EQ(field->fontSize, 24);
    EXPECT_EQ(field->textColor, Color::green);
    EXPECT_EQ(field->text.get(), "");
    EXPECT_FALSE(field->isFocused.get());
    EXPECT_TRUE(canvas.isEditingText());
}

TEST_F(CanvasText, the_field_that_appeared_brings_the_overlay_forward_and_takes_the_keyboard) {
    Window other({0, 0, 1, 1}, WindowStyleMask::borderless, BackingStoreType::buffered, false);
    Window overlay({0, 0, 1, 1}, WindowStyleMask::borderless, BackingStoreType::buffered, false);
    Window second({0, 0, 1, 1}, WindowStyleMask::borderless, BackingStoreType::buffered, false);
    overlay.setIdentifier(std::string(overlayWindowIdentifier));
    second.setIdentifier(std::string(overlayWindowIdentifier));
    canvas.mouseDown({70, 80});
    canvas.textField()->onAppear();
    EXPECT_EQ(host.application.activations, 0);
    host.mainQueue.run();
    EXPECT_EQ(host.application.activations, 1);
    EXPECT_TRUE(host.application.ignoredOtherApps);
    EXPECT_EQ(host.windows.calls.back(), "makeKeyAndOrderFront");
    EXPECT_TRUE(overlay.isVisible());
    EXPECT_FALSE(other.isVisible());
    EXPECT_FALSE(second.isVisible()) << "the first overlay window is the one";
    EXPECT_TRUE(canvas.isTextFieldFocused());
}

TEST_F(CanvasText, a_field_that_is_to_take_the_keyboard_asks_to_be_brought_up_to_date) {
    canvas.mouseDown({70, 80});
    canvas.textField()->onAppear();
    const int before = textFieldChanges;
    host.mainQueue.run();
    EXPECT_GT(textFieldChanges, before);
}

TEST_F(CanvasText, a_committed_text_takes_colour_and_width_of_the_moment) {
    typeAt({70, 80}, "Hello");
    canvas.selectedColor = Color(0.1, 0.2, 0.3, 0.4);
    canvas.lineWidth = 7;
    canvas.textField()->onSubmit();
    ASSERT_EQ(completed.size(), 1U);
    EXPECT_EQ(completed[0].color, CodableColor(Color(0.1, 0.2, 0.3, 0.4)));
    EXPECT_EQ(completed[0].lineWidth, 7);
    EXPECT_FALSE(completed[0].shapeRect || completed[0].shapeStartPoint ||
                 completed[0].shapeEndPoint);
}

TEST_F(CanvasText, with_its_field_the_keyboard_goes_too) {
    typeAt({70, 80}, "Hello");
    ASSERT_TRUE(canvas.isTextFieldFocused());
    canvas.textField()->onSubmit();
    EXPECT_FALSE(canvas.isTextFieldFocused());
}

TEST_F(CanvasText, return_commits_what_was_typed_where_the_press_began) {
    typeAt({70, 80}, "Hello");
    canvas.textField()->onSubmit();
    ASSERT_EQ(completed.size(), 1U);
    EXPECT_EQ(completed[0].tool, DrawingTool::text);
    EXPECT_EQ(completed[0].textContent, "Hello");
    EXPECT_EQ(completed[0].fontSize, 24);
    EXPECT_FALSE(completed[0].isShape);
    EXPECT_FALSE(completed[0].shapeType);
    EXPECT_EQ(completed[0].cgPoints(), (std::vector<CGPoint>{{70, 80}}));
    EXPECT_FALSE(canvas.textField());
    EXPECT_FALSE(canvas.textPosition());
    EXPECT_EQ(canvas.textContent(), "");
}

TEST_F(CanvasText, escape_keeps_what_was_typed) {
    typeAt({70, 80}, "Hello");
    canvas.textField()->onExitCommand();
    EXPECT_EQ(completed.size(), 1U);
}

TEST_F(CanvasText, the_loss_of_the_keyboard_commits_once) {
    typeAt({70, 80}, "Hello");
    canvas.textField()->isFocused.set(false);
    EXPECT_EQ(completed.size(), 1U);
    canvas.setTextFieldFocused(false);
    EXPECT_EQ(completed.size(), 1U);
}

TEST_F(CanvasText, an_empty_field_goes_without_a_stroke) {
    typeAt({70, 80}, "");
    canvas.textField()->onSubmit();
    EXPECT_TRUE(completed.empty());
    EXPECT_FALSE(canvas.isEditingText());
}

TEST_F(CanvasText, blanks_alone_are_committed_as_they_stand) {
    typeAt({70, 80}, "  ");
    canvas.textField()->onSubmit();
    ASSERT_EQ(completed.size(), 1U);
    EXPECT_EQ(completed[0].textContent, "  ");
}

TEST_F(CanvasText, another_reset_number_drops_the_text_and_the_later_loss_commits_nothing) {
    typeAt({70, 80}, "Hello");
    canvas.setTextEditorResetID(1);
    EXPECT_FALSE(canvas.isEditingText());
    canvas.setTextFieldFocused(false);
    EXPECT_TRUE(completed.empty());
}

TEST_F(CanvasText, the_same_reset_number_changes_nothing) {
    typeAt({70, 80}, "Hello");
    canvas.setTextEditorResetID(0);
    EXPECT_TRUE(canvas.isEditingText());
}

TEST_F(CanvasText, a_click_elsewhere_commits_and_starts_nothing) {
    typeAt({70, 80}, "Hello");
    canvas.mouseDown({300, 300});
    canvas.mouseDragged({310, 310});
    canvas.mouseUp({310, 310});
    ASSERT_EQ(completed.size(), 1U);
    EXPECT_EQ(completed[0].cgPoints(), (std::vector<CGPoint>{{70, 80}}));
    EXPECT_FALSE(canvas.isEditingText());
    EXPECT_FALSE(current());
}

TEST_F(CanvasText, back_at_its_start_a_drag_opens_the_field_anew) {
    canvas.mouseDown({70, 80});
    const int first = canvas.textField()->identity;
    canvas.mouseDragged({90, 90});
    EXPECT_EQ(canvas.textField()->identity, first);
    canvas.textField()->text.set("Hello");
    canvas.mouseDragged({70, 80});
    EXPECT_NE(canvas.textField()->identity, first);
    EXPECT_EQ(canvas.textField()->text.get(), "");
}

TEST_F(CanvasText, the_whiteboard_flag_changes_nothing) {
    canvas.isWhiteboardMode = true;
    typeAt({70, 80}, "Hello");
    canvas.textField()->onSubmit();
    EXPECT_EQ(completed.size(), 1U);
}

} // namespace
} // namespace quillon::test
