#include "model/DrawingTool.h"
#include "model/ModelJSON.h"
#include "model/ShapeType.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

namespace quillon::test {

namespace {

template <typename E>
std::vector<std::string> rawValues() {
    std::vector<std::string> result;
    for (const auto value : allCases<E>()) {
        result.emplace_back(rawValue(value));
    }
    return result;
}

template <typename Text>
std::vector<std::string> toolTexts(Text text) {
    std::vector<std::string> result;
    for (const auto tool : allCases<DrawingTool>()) {
        result.emplace_back(text(tool));
    }
    return result;
}

using Texts = std::vector<std::string>;

} // namespace

TEST(DrawingTool, the_eight_tools_stand_in_the_order_of_the_palette) {
    EXPECT_EQ(rawValues<DrawingTool>(), (Texts{"pen", "highlighter", "eraser", "text", "rectangle",
                                               "circle", "line", "arrow"}));
}

TEST(DrawingTool, a_user_reads_a_name_for_each) {
    EXPECT_EQ(
        toolTexts([](DrawingTool tool) { return displayName(tool); }),
        (Texts{"Pen", "Highlighter", "Eraser", "Text", "Rectangle", "Circle", "Line", "Arrow"}));
}

TEST(DrawingTool, a_symbol_stands_for_each) {
    EXPECT_EQ(toolTexts([](DrawingTool tool) { return systemImage(tool); }),
              (Texts{"pencil.tip", "highlighter", "eraser", "textformat", "rectangle", "circle",
                     "line.diagonal", "arrow.up.right"}));
}

TEST(DrawingTool, a_raw_value_is_matched_with_its_letter_case) {
    EXPECT_EQ(fromRawValue<DrawingTool>("pen"), DrawingTool::pen);
    EXPECT_EQ(fromRawValue<DrawingTool>("Pen"), std::nullopt);
}

TEST(DrawingTool, any_other_string_yields_no_tool) {
    for (const auto* text : {"", "pen ", " pen", "pe", "pens", "laser"}) {
        EXPECT_EQ(fromRawValue<DrawingTool>(text), std::nullopt) << '"' << text << '"';
    }
}

TEST(DrawingTool, every_case_comes_back_from_its_raw_value_and_is_identified_by_it) {
    for (const auto tool : allCases<DrawingTool>()) {
        EXPECT_EQ(fromRawValue<DrawingTool>(rawValue(tool)), tool);
        EXPECT_EQ(id(tool), rawValue(tool));
    }
}

TEST(DrawingTool, an_unknown_string_in_JSON_is_a_decoding_error) {
    EXPECT_EQ(encodeJSON(DrawingTool::arrow), JSON("arrow"));
    EXPECT_EQ(decodeJSON<DrawingTool>(JSON("arrow")), DrawingTool::arrow);
    EXPECT_EQ(decodeJSON<DrawingTool>(JSON("Arrow")), std::nullopt);
    EXPECT_EQ(decodeJSON<DrawingTool>(JSON(7)), std::nullopt);
}

TEST(ShapeType, the_four_shapes_share_their_strings_with_the_tools_but_not_their_type) {
    EXPECT_EQ(rawValues<ShapeType>(), (Texts{"rectangle", "circle", "line", "arrow"}));
    static_assert(!std::is_convertible_v<ShapeType, DrawingTool>);
}

TEST(ShapeType, a_raw_value_is_matched_exactly) {
    EXPECT_EQ(fromRawValue<ShapeType>("circle"), ShapeType::circle);
    EXPECT_EQ(fromRawValue<ShapeType>("Circle"), std::nullopt);
    EXPECT_EQ(fromRawValue<ShapeType>("pen"), std::nullopt);
}

TEST(CodablePoint, a_point_goes_in_and_out_without_rounding) {
    const CGPoint point{0.1 + 0.2, -1e300};
    EXPECT_EQ(CodablePoint(point).cgPoint(), point);
}

TEST(CodablePoint, millions_of_them_stand_side_by_side) {
    static_assert(sizeof(CodablePoint) == 16 && std::is_trivially_copyable_v<CodablePoint>);
}

TEST(CodablePoint, both_members_are_required_in_JSON) {
    const CodablePoint point(CGPoint{1.5, -2});
    EXPECT_EQ(serializeJSON(encodeJSON(point)), R"({"x":1.5,"y":-2.0})");
    EXPECT_EQ(decodeJSON<CodablePoint>(JSON{{"y", -2}, {"x", 1.5}}), point);
    EXPECT_EQ(decodeJSON<CodablePoint>(JSON{{"x", 1.5}}), std::nullopt);
    EXPECT_EQ(decodeJSON<CodablePoint>(JSON{{"x", 1.5}, {"y", nullptr}}), std::nullopt);
    EXPECT_EQ(decodeJSON<CodablePoint>(JSON{{"x", 1.5}, {"y", "2"}}), std::nullopt);
    EXPECT_EQ(decodeJSON<CodablePoint>(JSON::array({1.5, -2})), std::nullopt);
}

TEST(CodableRect, a_negative_size_is_not_standardised_in_either_direction) {
    const CGRect rect{10, 20, -30, -40};
    const CodableRect coded(rect);
    EXPECT_EQ(coded.x, 10);
    EXPECT_EQ(coded.y, 20);
    EXPECT_EQ(coded.width, -30);
    EXPECT_EQ(coded.height, -40);
    EXPECT_EQ(coded.cgRect(), rect);
}

TEST(CodableRect, all_four_members_are_required_in_JSON) {
    const CodableRect rect(CGRect{1, 2, 3, 4});
    const JSON whole = encodeJSON(rect);
    EXPECT_EQ(serializeJSON(whole), R"({"x":1.0,"y":2.0,"width":3.0,"height":4.0})");
    EXPECT_EQ(decodeJSON<CodableRect>(whole), rect);
    for (const auto* key : {"x", "y", "width", "height"}) {
        JSON lacking = whole;
        lacking.erase(key);
        EXPECT_EQ(decodeJSON<CodableRect>(lacking), std::nullopt) << key;
    }
}

} // namespace quillon::test
