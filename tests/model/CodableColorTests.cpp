#include "model/CodableColor.h"
#include "model/ModelJSON.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillon::test {

TEST(CodableColor, a_colour_gives_back_the_same_components_with_its_alpha) {
    const Color color(0.1, 0.2, 0.3, 0.4);
    EXPECT_EQ(CodableColor(color).color(), color);
}

TEST(CodableColor, a_component_outside_of_0_to_1_survives_unchanged) {
    const Color color(-0.5, 1.75, 2, 3);
    EXPECT_EQ(CodableColor(color).color(), color);
}

TEST(CodableColor, a_colour_of_another_space_is_kept_in_sRGB) {
    const CodableColor coded(Color(ColorSpace::linearSRGB, 0.21404114048223255, 0, 1, 0.25));
    EXPECT_NEAR(coded.red, 0.5, 1e-12);
    EXPECT_NEAR(coded.green, 0, 1e-12);
    EXPECT_NEAR(coded.blue, 1, 1e-12);
    EXPECT_EQ(coded.alpha, 0.25);
}

TEST(CodableColor, a_colour_that_does_not_convert_is_read_in_its_own_space) {
    const CodableColor coded(Color(ColorSpace::device, 0.1, 0.2, 0.3, 0.4));
    EXPECT_EQ(coded.color(), Color(ColorSpace::sRGB, 0.1, 0.2, 0.3, 0.4));
}

TEST(CodableColor, its_platform_colour_has_the_four_components_in_sRGB) {
    const NSColor color = CodableColor(Color(0.1, 0.2, 0.3, 0.4)).nsColor();
    EXPECT_EQ(color.colorSpace(), ColorSpace::sRGB);
    EXPECT_EQ(color.getRedGreenBlueAlpha(), (NSColor::Components{0.1, 0.2, 0.3, 0.4}));
}

TEST(CodableColor, its_members_stand_in_field_order_in_JSON) {
    EXPECT_EQ(serializeJSON(encodeJSON(CodableColor(Color(0.25, 0.5, 0.75, 1)))),
              R"({"red":0.25,"green":0.5,"blue":0.75,"alpha":1.0})");
}

TEST(CodableColor, every_member_is_required_in_JSON) {
    const JSON whole = encodeJSON(CodableColor(Color(0.25, 0.5, 0.75, 1)));
    ASSERT_TRUE(decodeJSON<CodableColor>(whole));
    for (const auto* key : {"red", "green", "blue", "alpha"}) {
        JSON lacking = whole;
        lacking.erase(key);
        EXPECT_EQ(decodeJSON<CodableColor>(lacking), std::nullopt) << key;
    }
}

TEST(CodableColor, members_in_any_order_and_unknown_ones_are_read) {
    const auto json = parseJSON(R"({"alpha":0.4,"hue":9,"blue":0.3,"green":0.2,"red":1})");
    ASSERT_TRUE(json);
    EXPECT_EQ(decodeJSON<CodableColor>(*json), CodableColor(Color(1, 0.2, 0.3, 0.4)));
}

TEST(CodableColor, a_component_that_is_not_finite_does_not_encode) {
    for (const double component :
         {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(serializeJSON(encodeJSON(CodableColor(Color(0, component, 0)))), std::nullopt);
    }
}

TEST(CodableColor, every_digit_of_a_component_survives_the_text) {
    const CodableColor coded(Color(0.1 + 0.2, 1.0 / 3, 2e-308, 0.9999999999999999));
    const auto text = serializeJSON(encodeJSON(coded));
    ASSERT_TRUE(text);
    EXPECT_EQ(decodeJSON<CodableColor>(*parseJSON(*text)), coded);
}

} // namespace quillon::test
