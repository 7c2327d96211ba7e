#include "model/DrawingStroke.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

namespace quillon::test {

namespace {

DrawingStroke penStroke(std::vector<CGPoint> points = {}) {
    return DrawingStroke({.points = std::move(points),
                          .color = Color::red,
                          .lineWidth = 4,
                          .tool = DrawingTool::pen});
}

} // namespace

TEST(DrawingStroke, what_is_not_given_takes_its_default) {
    const double before = Date::now().secondsSinceReferenceDate;
    const DrawingStroke stroke = penStroke();
    EXPECT_TRUE(stroke.points.empty());
    EXPECT_FALSE(stroke.isShape);
    EXPECT_EQ(stroke.shapeType, std::nullopt);
    EXPECT_EQ(stroke.shapeRect, std::nullopt);
    EXPECT_EQ(stroke.shapeStartPoint, std::nullopt);
    EXPECT_EQ(stroke.shapeEndPoint, std::nullopt);
    EXPECT_EQ(stroke.textContent, std::nullopt);
    EXPECT_EQ(stroke.fontSize, std::nullopt);
    EXPECT_GE(stroke.timestamp.secondsSinceReferenceDate, before);
    EXPECT_LE(stroke.timestamp.secondsSinceReferenceDate, Date::now().secondsSinceReferenceDate);
}

TEST(DrawingStroke, each_new_stroke_has_an_identity_of_its_own) {
    EXPECT_NE(penStroke().id(), penStroke().id());
}

TEST(DrawingStroke, what_is_given_is_converted_as_it_is_stored) {
    const auto identity = UUID::random();
    const DrawingStroke stroke({.id = identity,
                                .points = {{1, 2}},
                                .color = Color(0.1, 0.2, 0.3, 0.4),
                                .lineWidth = 2.5,
                                .tool = DrawingTool::arrow,
                                .isShape = true,
                                .shapeType = ShapeType::arrow,
                                .shapeRect = CGRect{1, 2, 3, 4},
                                .shapeStartPoint = CGPoint{5, 6},
                                .shapeEndPoint = CGPoint{7, 8},
                                .textContent = "text",
                                .fontSize = 18,
                                .timestamp = {123.5}});
    EXPECT_EQ(stroke.id(), identity);
    EXPECT_EQ(stroke.points, std::vector{CodablePoint(CGPoint{1, 2})});
    EXPECT_EQ(stroke.color, CodableColor(Color(0.1, 0.2, 0.3, 0.4)));
    EXPECT_EQ(stroke.lineWidth, 2.5);
    EXPECT_EQ(stroke.tool, DrawingTool::arrow);
    EXPECT_TRUE(stroke.isShape);
    EXPECT_EQ(stroke.shapeType, ShapeType::arrow);
    EXPECT_EQ(stroke.shapeRect, CodableRect(CGRect{1, 2, 3, 4}));
    EXPECT_EQ(stroke.shapeStartPoint, CodablePoint(CGPoint{5, 6}));
    EXPECT_EQ(stroke.shapeEndPoint, CodablePoint(CGPoint{7, 8}));
    EXPECT_EQ(stroke.textContent, "text");
    EXPECT_EQ(stroke.fontSize, 18);
    EXPECT_EQ(stroke.timestamp, Date{123.5});
}

TEST(DrawingStroke, the_conversions_give_back_what_was_given) {
    DrawingStroke stroke = penStroke({{1, 2}, {3, 4}});
    stroke.shapeRect = CodableRect(CGRect{1, 2, -3, -4});
    stroke.shapeStartPoint = CodablePoint(CGPoint{5, 6});
    stroke.shapeEndPoint = CodablePoint(CGPoint{7, 8});
    EXPECT_EQ(stroke.cgPoints(), (std::vector<CGPoint>{{1, 2}, {3, 4}}));
    EXPECT_EQ(stroke.cgShapeRect(), (CGRect{1, 2, -3, -4}));
    EXPECT_EQ(stroke.cgShapeStartPoint(), (CGPoint{5, 6}));
    EXPECT_EQ(stroke.cgShapeEndPoint(), (CGPoint{7, 8}));
    EXPECT_EQ(stroke.viewColor(), Color::red);
}

TEST(DrawingStroke, the_conversions_of_what_is_absent_are_absent) {
    const DrawingStroke stroke = penStroke();
    EXPECT_EQ(stroke.cgShapeRect(), std::nullopt);
    EXPECT_EQ(stroke.cgShapeStartPoint(), std::nullopt);
    EXPECT_EQ(stroke.cgShapeEndPoint(), std::nullopt);
}

TEST(DrawingStroke, no_points_give_an_empty_list) {
    EXPECT_EQ(penStroke().cgPoints(), std::vector<CGPoint>());
}

TEST(DrawingStroke, its_identity_can_be_read_and_not_assigned) {
    static_assert(std::is_same_v<decltype(std::declval<DrawingStroke&>().id()), const UUID&>);
    static_assert(std::is_copy_assignable_v<DrawingStroke>);
    static_assert(std::is_nothrow_move_assignable_v<DrawingStroke>);
    static_assert(std::is_nothrow_move_constructible_v<DrawingStroke>);
}

TEST(DrawingStroke, a_copy_that_is_changed_is_still_the_same_stroke) {
    const DrawingStroke stroke = penStroke({{1, 2}});
    DrawingStroke copy = stroke;
    copy.points.emplace_back(CGPoint{3, 4});
    EXPECT_EQ(copy.id(), stroke.id());
    EXPECT_EQ(stroke.points.size(), 1U);
}

} // namespace quillon::test
