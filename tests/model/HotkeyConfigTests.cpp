#include "model/HotkeyConfig.h"
#include "model/ModelJSON.h"
#include "platform/HotKeys.h"

#include <gtest/gtest.h>

#include <string>

namespace quillon::test {

namespace {

constexpr std::uint32_t kCommandShift = cmdKey | shiftKey;

HotkeyConfig migrated(std::uint32_t keyCode, std::uint32_t modifiers, HotkeyAction action) {
    return HotkeyConfig::migrateLegacyConfig({keyCode, modifiers, action}, action);
}

std::optional<HotkeyMap> mapFrom(std::string_view text) {
    const auto json = parseJSON(text);
    return json ? decodeJSON<HotkeyMap>(*json) : std::nullopt;
}

} // namespace

TEST(HotkeyConfig, six_actions_are_bound_at_first_and_undo_and_redo_are_not) {
    const HotkeyMap expected{
        {HotkeyAction::toggleAnnotation, {1, kCommandShift, HotkeyAction::toggleAnnotation}},
        {HotkeyAction::toggleWhiteboard, {13, kCommandShift, HotkeyAction::toggleWhiteboard}},
        {HotkeyAction::toggleCursorHalo, {4, kCommandShift, HotkeyAction::toggleCursorHalo}},
        {HotkeyAction::toggleSpotlight, {37, kCommandShift, HotkeyAction::toggleSpotlight}},
        {HotkeyAction::toggleZoom, {7, kCommandShift, HotkeyAction::toggleZoom}},
        {HotkeyAction::clearAnnotations, {8, kCommandShift, HotkeyAction::clearAnnotations}},
    };
    EXPECT_EQ(HotkeyConfig::defaults(), expected);
}

TEST(HotkeyConfig, two_that_differ_in_one_field_are_not_equal) {
    const HotkeyConfig config{1, 768, HotkeyAction::undo};
    EXPECT_EQ(config, (HotkeyConfig{1, 768, HotkeyAction::undo}));
    EXPECT_NE(config, (HotkeyConfig{2, 768, HotkeyAction::undo}));
    EXPECT_NE(config, (HotkeyConfig{1, 256, HotkeyAction::undo}));
    EXPECT_NE(config, (HotkeyConfig{1, 768, HotkeyAction::redo}));
}

TEST(LegacyModifiers, a_mask_without_legacy_bits_is_returned_as_it_is) {
    EXPECT_EQ(HotkeyConfig::migrateLegacyModifiers(768), 768U);
    EXPECT_EQ(HotkeyConfig::migrateLegacyModifiers(0), 0U);
    EXPECT_EQ(HotkeyConfig::migrateLegacyModifiers(0xFFE1FFFF), 0xFFE1FFFFU);
}

TEST(LegacyModifiers, each_legacy_bit_has_its_present_bit) {
    EXPECT_EQ(HotkeyConfig::migrateLegacyModifiers(0x100000), cmdKey);
    EXPECT_EQ(HotkeyConfig::migrateLegacyModifiers(0x20000), shiftKey);
    EXPECT_EQ(HotkeyConfig::migrateLegacyModifiers(0x80000), optionKey);
    EXPECT_EQ(HotkeyConfig::migrateLegacyModifiers(0x40000), controlKey);
}

TEST(LegacyModifiers, several_legacy_bits_are_translated_together) {
    EXPECT_EQ(HotkeyConfig::migrateLegacyModifiers(0x120000), 768U);
    EXPECT_EQ(HotkeyConfig::migrateLegacyModifiers(0x1E0000), 0x1B00U);
}

TEST(LegacyModifiers, a_mixed_mask_loses_its_present_bits_and_all_others) {
    EXPECT_EQ(HotkeyConfig::migrateLegacyModifiers(0x100100), 0x100U);
    EXPECT_EQ(HotkeyConfig::migrateLegacyModifiers(0x100200), 0x100U);
    EXPECT_EQ(HotkeyConfig::migrateLegacyModifiers(0x80110000 | 0x20000), 0x300U);
}

TEST(LegacyConfig, an_old_default_key_moves_to_the_new_one_whichever_form_its_modifiers_had) {
    for (const std::uint32_t modifiers : {768U, 0x120000U}) {
        EXPECT_EQ(migrated(12, modifiers, HotkeyAction::toggleCursorHalo),
                  (HotkeyConfig{4, 768, HotkeyAction::toggleCursorHalo}));
        EXPECT_EQ(migrated(26, modifiers, HotkeyAction::toggleSpotlight),
                  (HotkeyConfig{37, 768, HotkeyAction::toggleSpotlight}));
        EXPECT_EQ(migrated(15, modifiers, HotkeyAction::toggleZoom),
                  (HotkeyConfig{7, 768, HotkeyAction::toggleZoom}));
    }
}

TEST(LegacyConfig, an_old_default_key_with_other_modifiers_is_the_users_own_and_stays) {
    EXPECT_EQ(migrated(26, 0x100, HotkeyAction::toggleSpotlight),
              (HotkeyConfig{26, 0x100, HotkeyAction::toggleSpotlight}));
    EXPECT_EQ(migrated(26, 0x1A0000, HotkeyAction::toggleSpotlight),
              (HotkeyConfig{26, 0xB00, HotkeyAction::toggleSpotlight}));
}

TEST(LegacyConfig, an_action_without_an_old_key_keeps_its_key) {
    EXPECT_EQ(migrated(12, 768, HotkeyAction::toggleAnnotation),
              (HotkeyConfig{12, 768, HotkeyAction::toggleAnnotation}));
    EXPECT_EQ(migrated(12, 0x120000, HotkeyAction::undo),
              (HotkeyConfig{12, 768, HotkeyAction::undo}));
}

TEST(LegacyConfig, the_old_key_of_one_action_means_nothing_for_another) {
    EXPECT_EQ(migrated(26, 768, HotkeyAction::toggleCursorHalo),
              (HotkeyConfig{26, 768, HotkeyAction::toggleCursorHalo}));
}

TEST(LegacyConfig, the_result_has_the_action_that_was_asked_for) {
    EXPECT_EQ(
        HotkeyConfig::migrateLegacyConfig({15, 768, HotkeyAction::undo}, HotkeyAction::toggleZoom),
        (HotkeyConfig{7, 768, HotkeyAction::toggleZoom}));
}

TEST(LegacyConfig, a_present_binding_stays_as_it_is) {
    for (const auto& [action, config] : HotkeyConfig::defaults()) {
        EXPECT_EQ(HotkeyConfig::migrateLegacyConfig(config, action), config);
    }
}

TEST(HotkeyConfigJSON, its_members_stand_in_field_order) {
    EXPECT_EQ(serializeJSON(encodeJSON(HotkeyConfig{7, 768, HotkeyAction::toggleZoom})),
              R"({"keyCode":7,"modifiers":768,"action":"toggleZoom"})");
}

TEST(HotkeyConfigJSON, every_member_is_required) {
    const JSON whole = encodeJSON(HotkeyConfig{7, 768, HotkeyAction::toggleZoom});
    for (const auto* key : {"keyCode", "modifiers", "action"}) {
        JSON lacking = whole;
        lacking.erase(key);
        EXPECT_EQ(decodeJSON<HotkeyConfig>(lacking), std::nullopt) << key;
    }
}

TEST(HotkeyConfigJSON, a_number_that_is_no_32_bit_whole_is_refused) {
    for (const JSON& number : {JSON(-1), JSON(4294967296), JSON(1.5), JSON("1"), JSON(true)}) {
        JSON json = encodeJSON(HotkeyConfig{7, 768, HotkeyAction::toggleZoom});
        json["keyCode"] = number;
        EXPECT_EQ(decodeJSON<HotkeyConfig>(json), std::nullopt) << number;
    }
    JSON largest = encodeJSON(HotkeyConfig{7, 768, HotkeyAction::toggleZoom});
    largest["modifiers"] = 4294967295;
    EXPECT_EQ(decodeJSON<HotkeyConfig>(largest),
              (HotkeyConfig{7, 4294967295, HotkeyAction::toggleZoom}));
}

TEST(HotkeyMapJSON, actions_and_bindings_alternate_in_one_flat_array) {
    const HotkeyMap map{{HotkeyAction::toggleAnnotation, {1, 768, HotkeyAction::toggleAnnotation}},
                        {HotkeyAction::toggleZoom, {7, 768, HotkeyAction::toggleZoom}}};
    EXPECT_EQ(serializeJSON(encodeJSON(map)),
              R"(["toggleAnnotation",{"keyCode":1,"modifiers":768,"action":"toggleAnnotation"},)"
              R"("toggleZoom",{"keyCode":7,"modifiers":768,"action":"toggleZoom"}])");
}

TEST(HotkeyMapJSON, pairs_are_read_in_any_order) {
    const HotkeyMap expected{
        {HotkeyAction::toggleAnnotation, {1, 768, HotkeyAction::toggleAnnotation}},
        {HotkeyAction::toggleZoom, {7, 768, HotkeyAction::toggleZoom}}};
    EXPECT_EQ(
        mapFrom(R"(["toggleZoom",{"keyCode":7,"modifiers":768,"action":"toggleZoom"},)"
                R"("toggleAnnotation",{"action":"toggleAnnotation","modifiers":768,"keyCode":1}])"),
        expected);
}

TEST(HotkeyMapJSON, the_two_actions_of_a_pair_are_not_compared) {
    EXPECT_EQ(mapFrom(R"(["undo",{"keyCode":6,"modifiers":256,"action":"redo"}])"),
              (HotkeyMap{{HotkeyAction::undo, {6, 256, HotkeyAction::redo}}}));
}

TEST(HotkeyMapJSON, an_empty_array_is_an_empty_map) {
    EXPECT_EQ(mapFrom("[]"), HotkeyMap());
    EXPECT_EQ(encodeJSON(HotkeyMap()), JSON::array());
}

TEST(HotkeyMapJSON, one_malformed_entry_fails_the_whole_map) {
    const std::string good = R"("undo",{"keyCode":6,"modifiers":256,"action":"undo"},)";
    for (const std::string bad : {
             R"("redo")",                                                // Odd length.
             R"("paint",{"keyCode":6,"modifiers":256,"action":"redo"})", // Unknown key.
             R"("redo",{"keyCode":6,"modifiers":256,"action":"paint"})", // Unknown action.
             R"("redo",{"keyCode":6,"action":"redo"})",                  // Missing member.
             R"({"keyCode":6,"modifiers":256,"action":"redo"},"redo")",  // Wrong way round.
             R"("redo",null)",                                           // No binding.
         }) {
        EXPECT_EQ(mapFrom("[" + good + bad + "]"), std::nullopt) << bad;
    }
}

TEST(HotkeyMapJSON, an_object_is_no_map) {
    EXPECT_EQ(mapFrom(R"({"undo":{"keyCode":6,"modifiers":256,"action":"undo"}})"), std::nullopt);
    EXPECT_EQ(mapFrom("{}"), std::nullopt);
}

} // namespace quillon::test
