#include "model/AutoEraseTimer.h"
#include "model/ClickAnimationType.h"
#include "model/HaloShape.h"
#include "model/HotkeyAction.h"
#include "model/MagnificationFactor.h"
#include "model/ModelJSON.h"
#include "model/ToolbarPosition.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <unordered_set>
#include <vector>

namespace quillon::test {

namespace {

using Texts = std::vector<std::string>;

template <typename E, typename Text>
Texts texts(Text text) {
    Texts result;
    for (const auto value : allCases<E>()) {
        result.emplace_back(text(value));
    }
    return result;
}

template <typename E>
Texts rawValues() {
    return texts<E>([](E value) { return rawValue(value); });
}

template <typename E>
Texts displayNames() {
    return texts<E>([](E value) { return displayName(value); });
}

} // namespace

template <typename E>
class OptionTypes : public testing::Test {};

using Options = testing::Types<HaloShape, ClickAnimationType, AutoEraseTimer, MagnificationFactor,
                               HotkeyAction>;
TYPED_TEST_SUITE(OptionTypes, Options);

TYPED_TEST(OptionTypes, every_case_comes_back_from_its_raw_value_and_is_identified_by_it) {
    for (const auto value : allCases<TypeParam>()) {
        EXPECT_EQ(fromRawValue<TypeParam>(rawValue(value)), value);
        EXPECT_EQ(id(value), rawValue(value));
    }
}

TYPED_TEST(OptionTypes, every_case_is_its_bare_raw_value_in_JSON) {
    for (const auto value : allCases<TypeParam>()) {
        EXPECT_EQ(encodeJSON(value), JSON(std::string(rawValue(value))));
        EXPECT_EQ(decodeJSON<TypeParam>(encodeJSON(value)), value);
    }
}

TYPED_TEST(OptionTypes, an_unknown_string_yields_no_value) {
    EXPECT_EQ(fromRawValue<TypeParam>(""), std::nullopt);
    EXPECT_EQ(fromRawValue<TypeParam>("unknown"), std::nullopt);
    EXPECT_EQ(decodeJSON<TypeParam>(JSON("unknown")), std::nullopt);
    EXPECT_EQ(decodeJSON<TypeParam>(JSON(nullptr)), std::nullopt);
}

TYPED_TEST(OptionTypes, cases_stand_in_order_and_can_be_hashed) {
    const auto cases = allCases<TypeParam>();
    EXPECT_TRUE(std::is_sorted(cases.begin(), cases.end()));
    const std::unordered_set<TypeParam> set(cases.begin(), cases.end());
    EXPECT_EQ(set.size(), cases.size());
}

TEST(HaloShape, three_shapes_with_their_names) {
    EXPECT_EQ(rawValues<HaloShape>(), (Texts{"ring", "squircle", "rhombus"}));
    EXPECT_EQ(displayNames<HaloShape>(), (Texts{"Ring", "Squircle", "Rhombus"}));
}

TEST(ClickAnimationType, three_kinds) {
    EXPECT_EQ(rawValues<ClickAnimationType>(), (Texts{"pulse", "ripple", "none"}));
}

TEST(AutoEraseTimer, four_times_with_their_names) {
    EXPECT_EQ(rawValues<AutoEraseTimer>(), (Texts{"off", "2s", "5s", "10s"}));
    EXPECT_EQ(displayNames<AutoEraseTimer>(),
              (Texts{"Off", "2 Seconds", "5 Seconds", "10 Seconds"}));
}

TEST(AutoEraseTimer, off_has_no_duration) {
    EXPECT_EQ(duration(AutoEraseTimer::off), std::nullopt);
    EXPECT_EQ(duration(AutoEraseTimer::twoSeconds), 2.0);
    EXPECT_EQ(duration(AutoEraseTimer::fiveSeconds), 5.0);
    EXPECT_EQ(duration(AutoEraseTimer::tenSeconds), 10.0);
}

TEST(AutoEraseTimer, a_number_without_its_unit_is_no_value) {
    EXPECT_EQ(fromRawValue<AutoEraseTimer>("2"), std::nullopt);
    EXPECT_EQ(fromRawValue<AutoEraseTimer>("2s"), AutoEraseTimer::twoSeconds);
    EXPECT_EQ(fromRawValue<AutoEraseTimer>("twoSeconds"), std::nullopt);
}

TEST(MagnificationFactor, the_text_is_the_raw_value_itself) {
    EXPECT_EQ(rawValues<MagnificationFactor>(), (Texts{"1.5x", "2x", "4x", "8x"}));
    EXPECT_EQ(displayNames<MagnificationFactor>(), rawValues<MagnificationFactor>());
    EXPECT_EQ(displayName(MagnificationFactor::x1_5), "1.5x");
}

TEST(MagnificationFactor, each_stands_for_its_number) {
    EXPECT_EQ(factor(MagnificationFactor::x1_5), 1.5);
    EXPECT_EQ(factor(MagnificationFactor::x2), 2.0);
    EXPECT_EQ(factor(MagnificationFactor::x4), 4.0);
    EXPECT_EQ(factor(MagnificationFactor::x8), 8.0);
}

TEST(HotkeyAction, eight_actions_in_order_with_their_names) {
    EXPECT_EQ(rawValues<HotkeyAction>(),
              (Texts{"toggleAnnotation", "toggleWhiteboard", "toggleCursorHalo", "toggleSpotlight",
                     "toggleZoom", "clearAnnotations", "undo", "redo"}));
    EXPECT_EQ(displayNames<HotkeyAction>(),
              (Texts{"Toggle Annotation", "Toggle Whiteboard", "Toggle Cursor Halo",
                     "Toggle Spotlight", "Toggle Zoom", "Clear Annotations", "Undo", "Redo"}));
}

TEST(ToolbarPosition, the_default_is_the_origin) {
    EXPECT_EQ(ToolbarPosition::defaultPosition, (ToolbarPosition{0, 0}));
}

TEST(ToolbarPosition, two_are_equal_when_both_numbers_are) {
    EXPECT_EQ((ToolbarPosition{1, 2}), (ToolbarPosition{1, 2}));
    EXPECT_NE((ToolbarPosition{1, 2}), (ToolbarPosition{1, 3}));
    EXPECT_NE((ToolbarPosition{1, 2}), (ToolbarPosition{3, 2}));
}

TEST(ToolbarPosition, both_numbers_are_required_in_JSON) {
    EXPECT_EQ(serializeJSON(encodeJSON(ToolbarPosition{12.5, -3})), R"({"x":12.5,"y":-3.0})");
    EXPECT_EQ(decodeJSON<ToolbarPosition>(JSON{{"y", -3}, {"x", 12.5}}),
              (ToolbarPosition{12.5, -3}));
    EXPECT_EQ(decodeJSON<ToolbarPosition>(JSON{{"x", 12.5}}), std::nullopt);
    EXPECT_EQ(decodeJSON<ToolbarPosition>(JSON{{"x", 12.5}, {"y", true}}), std::nullopt);
}

} // namespace quillon::test
