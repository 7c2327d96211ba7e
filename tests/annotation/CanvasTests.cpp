#include "annotation/CanvasTest.h"
#include "annotation/TestStrokes.h"

namespace quillon::test {

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

TEST_F(Canvas, a_freehand_stroke_under_a_shape_tool_takes_no_shape) {
    canvas.mouseDown({1, 1});
    canvas.mouseDragged({5, 5});
    canvas.selectedTool = DrawingTool::rectangle;
    canvas.mouseDragged({9, 9});
    ASSERT_TRUE(current());
    EXPECT_FALSE(current()->shapeRect || current()->shapeEndPoint);
    EXPECT_EQ(current()->points.size(), 2U);
}

TEST_F(Canvas, a_shape_under_the_pen_is_drawn_on_by_points_and_completed_as_the_shape_it_was) {
    canvas.selectedTool = DrawingTool::rectangle;
    canvas.mouseDown({1, 1});
    canvas.mouseDragged({5, 5});
    canvas.selectedTool = DrawingTool::pen;
    canvas.mouseDragged({9, 9});
    canvas.mouseUp({9, 9});
    ASSERT_EQ(completed.size(), 1U);
    EXPECT_EQ(completed[0].tool, DrawingTool::rectangle);
    EXPECT_EQ(completed[0].cgShapeRect(), (CGRect{1, 1, 4, 4}));
    EXPECT_EQ(completed[0].cgPoints(), (std::vector<CGPoint>{{1, 1}, {9, 9}, {9, 9}}));
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

} // namespace quillon::test
