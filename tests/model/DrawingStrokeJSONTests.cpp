#include "model/DrawingStroke.h"
#include "model/ModelJSON.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillon::test {

namespace {

constexpr const char* kIdentity = "0F1E2D3C-4B5A-4678-9ABC-DEF012345678";

DrawingStroke shapeStroke() {
    return DrawingStroke({.id = *UUID::fromString(kIdentity),
                          .points = {{1, 2}},
                          .color = Color(0.25, 0.5, 0.75, 1),
                          .lineWidth = 4,
                          .tool = DrawingTool::arrow,
                          .isShape = true,
                          .shapeType = ShapeType::arrow,
                          .shapeRect = CGRect{1, 2, 3, 4},
                          .shapeStartPoint = CGPoint{1, 2},
                          .shapeEndPoint = CGPoint{4, 6},
                          .timestamp = {700000000.5}});
}

DrawingStroke textStroke() {
    return DrawingStroke({.id = *UUID::fromString(kIdentity),
                          .points = {{10, 20}},
                          .color = Color(0.25, 0.5, 0.75, 1),
                          .lineWidth = 4,
                          .tool = DrawingTool::text,
                          .textContent = "Grüße \"二\"\n",
                          .fontSize = 18,
                          .timestamp = {-1}});
}

std::vector<std::string> keysOf(const JSON& object) {
    std::vector<std::string> keys;
    for (const auto& [key, member] : object.items()) {
        keys.push_back(key);
    }
    return keys;
}

} // namespace

TEST(DrawingStrokeJSON, a_shape_is_written_in_field_order_without_what_is_absent) {
    EXPECT_EQ(serializeJSON(encodeJSON(shapeStroke())),
              R"({"id":"0F1E2D3C-4B5A-4678-9ABC-DEF012345678","points":[{"x":1.0,"y":2.0}],)"
              R"("color":{"red":0.25,"green":0.5,"blue":0.75,"alpha":1.0},"lineWidth":4.0,)"
              R"("tool":"arrow","isShape":true,"shapeType":"arrow",)"
              R"("shapeRect":{"x":1.0,"y":2.0,"width":3.0,"height":4.0},)"
              R"("shapeStartPoint":{"x":1.0,"y":2.0},"shapeEndPoint":{"x":4.0,"y":6.0},)"
              R"("timestamp":700000000.5})");
}

TEST(DrawingStrokeJSON, a_text_has_no_key_of_a_shape_at_all) {
    EXPECT_EQ(keysOf(encodeJSON(textStroke())),
              (std::vector<std::string>{"id", "points", "color", "lineWidth", "tool", "isShape",
                                        "textContent", "fontSize", "timestamp"}));
}

TEST(DrawingStrokeJSON, what_was_written_reads_back_equal) {
    for (const auto& stroke : {shapeStroke(), textStroke()}) {
        const auto text = serializeJSON(encodeJSON(stroke));
        ASSERT_TRUE(text);
        EXPECT_EQ(decodeJSON<DrawingStroke>(*parseJSON(*text)), stroke);
    }
}

TEST(DrawingStrokeJSON, the_identity_and_the_time_are_those_of_the_text) {
    const auto decoded = decodeJSON<DrawingStroke>(encodeJSON(shapeStroke()));
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->id().uuidString(), kIdentity);
    EXPECT_EQ(decoded->timestamp, Date{700000000.5});
}

TEST(DrawingStrokeJSON, an_empty_list_of_points_is_written_and_read) {
    DrawingStroke stroke = shapeStroke();
    stroke.points.clear();
    const JSON json = encodeJSON(stroke);
    EXPECT_EQ(json.at("points"), JSON::array());
    EXPECT_EQ(decodeJSON<DrawingStroke>(json), stroke);
}

TEST(DrawingStrokeJSON, an_optional_key_that_is_missing_or_null_is_nothing) {
    for (const auto* key : {"shapeType", "shapeRect", "shapeStartPoint", "shapeEndPoint"}) {
        JSON lacking = encodeJSON(shapeStroke());
        lacking.erase(key);
        JSON null = encodeJSON(shapeStroke());
        null[key] = nullptr;
        const auto decoded = decodeJSON<DrawingStroke>(lacking);
        ASSERT_TRUE(decoded) << key;
        EXPECT_NE(*decoded, shapeStroke()) << key;
        EXPECT_EQ(decodeJSON<DrawingStroke>(null), decoded) << key;
    }
    JSON text = encodeJSON(textStroke());
    text["textContent"] = nullptr;
    text.erase("fontSize");
    const auto decoded = decodeJSON<DrawingStroke>(text);
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->textContent, std::nullopt);
    EXPECT_EQ(decoded->fontSize, std::nullopt);
}

TEST(DrawingStrokeJSON, a_required_key_that_is_missing_or_null_fails_the_whole_stroke) {
    for (const auto* key : {"id", "points", "color", "lineWidth", "tool", "isShape", "timestamp"}) {
        JSON lacking = encodeJSON(shapeStroke());
        lacking.erase(key);
        EXPECT_EQ(decodeJSON<DrawingStroke>(lacking), std::nullopt) << key;
        JSON null = encodeJSON(shapeStroke());
        null[key] = nullptr;
        EXPECT_EQ(decodeJSON<DrawingStroke>(null), std::nullopt) << key;
    }
}

TEST(DrawingStrokeJSON, a_member_of_the_wrong_form_fails_the_whole_stroke) {
    const std::vector<std::pair<const char*, JSON>> wrong{
        {"id", "not an identity"},
        {"points", JSON{{"x", 1}, {"y", 2}}},
        {"points", JSON::array({JSON{{"x", 1}}})},
        {"color", "red"},
        {"lineWidth", "4"},
        {"tool", "laser"},
        {"isShape", 1},
        {"shapeType", "pen"},
        {"shapeRect", JSON{{"x", 1}, {"y", 2}}},
        {"shapeStartPoint", 3},
        {"shapeEndPoint", JSON::array({1, 2})},
        {"textContent", 5},
        {"fontSize", "18"},
        {"timestamp", "2001-01-01T00:00:00Z"},
    };
    for (const auto& [key, value] : wrong) {
        JSON json = encodeJSON(shapeStroke());
        json[key] = value;
        EXPECT_EQ(decodeJSON<DrawingStroke>(json), std::nullopt) << key << ": " << value;
    }
}

TEST(DrawingStrokeJSON, an_identity_in_small_letters_is_accepted) {
    JSON json = encodeJSON(shapeStroke());
    json["id"] = "0f1e2d3c-4b5a-4678-9abc-def012345678";
    EXPECT_EQ(decodeJSON<DrawingStroke>(json), shapeStroke());
}

TEST(DrawingStrokeJSON, what_is_no_object_is_no_stroke) {
    for (const JSON& json : {JSON(), JSON(1), JSON("pen"), JSON::array(), JSON::object()}) {
        EXPECT_EQ(decodeJSON<DrawingStroke>(json), std::nullopt) << json;
    }
}

} // namespace quillon::test
