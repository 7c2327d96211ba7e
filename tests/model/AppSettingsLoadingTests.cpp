#include "model/AppSettings.h"
#include "model/ModelJSON.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace quillon::test {

namespace {

/// A host whose defaults are laid out before the settings read them.
class AppSettingsLoading : public testing::Test {
protected:
    void store(const std::string& key, DefaultsValue value) {
        host.userDefaults.values.insert_or_assign(key, std::move(value));
    }
    void storeData(const std::string& key, std::string json) { store(key, Data{std::move(json)}); }

    static AppSettings& settings() { return AppSettings::shared(); }

    DefaultsValue stored(std::string_view key) const {
        return host.userDefaults.object(key).value();
    }
    std::string storedText(std::string_view key) const {
        return host.userDefaults.data(key).value().bytes;
    }

    FakeHost host;
};

} // namespace

TEST_F(AppSettingsLoading, an_empty_database_yields_all_defaults) {
    EXPECT_FALSE(settings().isAnnotationEnabled.get());
    EXPECT_FALSE(settings().isWhiteboardMode.get());
    EXPECT_FALSE(settings().isCursorHaloEnabled.get());
    EXPECT_FALSE(settings().isSpotlightEnabled.get());
    EXPECT_FALSE(settings().isZoomEnabled.get());
    EXPECT_EQ(settings().selectedTool.get(), DrawingTool::pen);
    EXPECT_EQ(settings().selectedColor.get(), Color::cyan);
    EXPECT_EQ(settings().lineWidth.get(), 4.0);
    EXPECT_EQ(settings().quickColors.get(),
              (std::vector{Color::red, Color::yellow, Color::green, Color::cyan, Color::purple}));
    EXPECT_EQ(settings().haloShape.get(), HaloShape::ring);
    EXPECT_EQ(settings().haloColor.get(), Color::cyan);
    EXPECT_EQ(settings().haloSize.get(), 40.0);
    EXPECT_EQ(settings().clickAnimationType.get(), ClickAnimationType::pulse);
    EXPECT_EQ(settings().spotlightIntensity.get(), 0.7);
    EXPECT_EQ(settings().spotlightRadius.get(), 150.0);
    EXPECT_EQ(settings().magnificationFactor.get(), MagnificationFactor::x2);
    EXPECT_EQ(settings().zoomWindowSize.get(), 200.0);
    EXPECT_EQ(settings().zoomWindowOffsetX.get(), 30.0);
    EXPECT_EQ(settings().zoomWindowOffsetY.get(), 30.0);
    EXPECT_TRUE(settings().showZoomCrosshair.get());
    EXPECT_EQ(settings().autoEraseTimer.get(), AutoEraseTimer::off);
    EXPECT_TRUE(settings().showFloatingToolbar.get());
    EXPECT_EQ(settings().toolbarPosition.get(), (ToolbarPosition{0, 0}));
    EXPECT_EQ(settings().hotkeys.get(), HotkeyConfig::defaults());
    EXPECT_FALSE(settings().launchAtLogin.get());
}

TEST_F(AppSettingsLoading, after_construction_all_25_keys_are_written_once_and_in_order) {
    settings();
    EXPECT_EQ(host.userDefaults.writes,
              (std::vector<std::string>{
                  "isAnnotationEnabled", "isWhiteboardMode",   "isCursorHaloEnabled",
                  "isSpotlightEnabled",  "isZoomEnabled",      "selectedTool",
                  "selectedColor",       "lineWidth",          "quickColors",
                  "haloShape",           "haloColor",          "haloSize",
                  "clickAnimationType",  "spotlightIntensity", "spotlightRadius",
                  "magnificationFactor", "zoomWindowSize",     "zoomWindowOffsetX",
                  "zoomWindowOffsetY",   "showZoomCrosshair",  "autoEraseTimer",
                  "showFloatingToolbar", "toolbarPosition",    "hotkeys",
                  "launchAtLogin"}));
}

TEST_F(AppSettingsLoading, each_kind_of_value_has_its_own_stored_form) {
    settings();
    EXPECT_EQ(stored("showZoomCrosshair"), DefaultsValue(true));
    EXPECT_EQ(stored("lineWidth"), DefaultsValue(4.0));
    EXPECT_EQ(stored("magnificationFactor"), DefaultsValue(std::string("2x")));
    EXPECT_EQ(storedText("toolbarPosition"), R"({"x":0.0,"y":0.0})");
    EXPECT_EQ(storedText("selectedColor"), *serializeJSON(encodeJSON(CodableColor(Color::cyan))));
    EXPECT_EQ(parseJSON(storedText("quickColors"))->size(), 5U);
    EXPECT_EQ(parseJSON(storedText("hotkeys"))->size(), 12U);
}

TEST_F(AppSettingsLoading, an_unknown_tool_yields_the_pen_and_is_rewritten_at_once) {
    store("selectedTool", std::string("laser"));
    EXPECT_EQ(settings().selectedTool.get(), DrawingTool::pen);
    EXPECT_EQ(stored("selectedTool"), DefaultsValue(std::string("pen")));
}

TEST_F(AppSettingsLoading, an_option_stored_as_data_or_number_yields_its_default) {
    storeData("haloShape", "rhombus");
    store("magnificationFactor", 8.0);
    EXPECT_EQ(settings().haloShape.get(), HaloShape::ring);
    EXPECT_EQ(settings().magnificationFactor.get(), MagnificationFactor::x2);
}

TEST_F(AppSettingsLoading, a_line_width_key_holding_a_string_yields_the_default) {
    store("lineWidth", std::string("12"));
    EXPECT_EQ(settings().lineWidth.get(), 4.0);
    EXPECT_EQ(stored("lineWidth"), DefaultsValue(4.0));
}

TEST_F(AppSettingsLoading, a_line_width_key_holding_data_yields_the_default) {
    storeData("lineWidth", "12");
    EXPECT_EQ(settings().lineWidth.get(), 4.0);
}

TEST_F(AppSettingsLoading, a_boolean_reads_as_one_or_zero_for_a_number) {
    store("lineWidth", true);
    store("haloSize", false);
    EXPECT_EQ(settings().lineWidth.get(), 1.0);
    EXPECT_EQ(settings().haloSize.get(), 0.0);
    EXPECT_EQ(stored("lineWidth"), DefaultsValue(1.0));
}

TEST_F(AppSettingsLoading, a_number_of_exactly_one_or_zero_reads_as_a_boolean) {
    store("isZoomEnabled", 1.0);
    store("showZoomCrosshair", 0.0);
    EXPECT_TRUE(settings().isZoomEnabled.get());
    EXPECT_FALSE(settings().showZoomCrosshair.get());
    EXPECT_EQ(stored("isZoomEnabled"), DefaultsValue(true));
}

TEST_F(AppSettingsLoading, any_other_number_is_no_boolean) {
    store("showZoomCrosshair", 0.5);
    store("showFloatingToolbar", -1.0);
    store("isZoomEnabled", 2.0);
    store("launchAtLogin", std::numeric_limits<double>::quiet_NaN());
    EXPECT_TRUE(settings().showZoomCrosshair.get());
    EXPECT_TRUE(settings().showFloatingToolbar.get());
    EXPECT_FALSE(settings().isZoomEnabled.get());
    EXPECT_FALSE(settings().launchAtLogin.get());
}

TEST_F(AppSettingsLoading, a_string_never_reads_as_a_boolean) {
    store("isZoomEnabled", std::string("true"));
    store("isAnnotationEnabled", std::string("1"));
    EXPECT_FALSE(settings().isZoomEnabled.get());
    EXPECT_FALSE(settings().isAnnotationEnabled.get());
}

TEST_F(AppSettingsLoading, a_stored_false_is_not_an_absent_key) {
    store("showZoomCrosshair", false);
    store("spotlightIntensity", 0.0);
    EXPECT_FALSE(settings().showZoomCrosshair.get());
    EXPECT_EQ(settings().spotlightIntensity.get(), 0.0);
}

TEST_F(AppSettingsLoading, a_stored_empty_list_of_quick_colours_stays_empty) {
    storeData("quickColors", "[]");
    EXPECT_TRUE(settings().quickColors->empty());
    EXPECT_EQ(storedText("quickColors"), "[]");
}

TEST_F(AppSettingsLoading, quick_colours_of_another_shape_yield_the_five_defaults) {
    storeData("quickColors", R"({"red":1,"green":0,"blue":0,"alpha":1})");
    EXPECT_EQ(settings().quickColors.get(), Color::quickSelectDefaults());
}

TEST_F(AppSettingsLoading, one_malformed_quick_colour_rejects_them_all) {
    storeData("quickColors",
              R"([{"red":1,"green":0,"blue":0,"alpha":1},{"red":1,"green":0,"blue":0}])");
    EXPECT_EQ(settings().quickColors.get(), Color::quickSelectDefaults());
}

TEST_F(AppSettingsLoading, a_colour_is_read_component_by_component) {
    storeData("haloColor", R"({"alpha":0.5,"blue":-1,"green":2,"red":0.25})");
    EXPECT_EQ(settings().haloColor.get(), Color(0.25, 2, -1, 0.5));
}

TEST_F(AppSettingsLoading, a_colour_that_is_no_JSON_or_no_data_yields_the_default) {
    storeData("haloColor", "{\"red\":");
    store("selectedColor", std::string(R"({"red":1,"green":0,"blue":0,"alpha":1})"));
    EXPECT_EQ(settings().haloColor.get(), Color::cyan);
    EXPECT_EQ(settings().selectedColor.get(), Color::cyan);
}

TEST_F(AppSettingsLoading, a_toolbar_position_is_read_in_any_order_of_its_members) {
    storeData("toolbarPosition", R"({"y":20,"x":10})");
    EXPECT_EQ(settings().toolbarPosition.get(), (ToolbarPosition{10, 20}));
}

TEST_F(AppSettingsLoading, a_toolbar_really_at_the_origin_reads_as_one_never_placed) {
    storeData("toolbarPosition", R"({"x":0,"y":0})");
    EXPECT_EQ(settings().toolbarPosition.get(), ToolbarPosition::defaultPosition);
}

TEST_F(AppSettingsLoading, a_broken_toolbar_position_yields_the_default_and_is_rewritten) {
    storeData("toolbarPosition", R"({"x":10})");
    EXPECT_EQ(settings().toolbarPosition.get(), ToolbarPosition::defaultPosition);
    EXPECT_EQ(storedText("toolbarPosition"), R"({"x":0.0,"y":0.0})");
}

TEST_F(AppSettingsLoading, missing_hotkeys_are_not_filled_in_from_the_defaults) {
    storeData("hotkeys", R"(["toggleZoom",{"keyCode":9,"modifiers":256,"action":"toggleZoom"}])");
    EXPECT_EQ(settings().hotkeys.get(),
              (HotkeyMap{{HotkeyAction::toggleZoom, {9, 256, HotkeyAction::toggleZoom}}}));
}

TEST_F(AppSettingsLoading, hotkeys_without_undo_and_redo_stay_without_them) {
    storeData("hotkeys", *serializeJSON(encodeJSON(HotkeyConfig::defaults())));
    EXPECT_FALSE(settings().hotkeys->contains(HotkeyAction::undo));
    EXPECT_FALSE(settings().hotkeys->contains(HotkeyAction::redo));
}

TEST_F(AppSettingsLoading, an_empty_map_of_hotkeys_stays_empty) {
    storeData("hotkeys", "[]");
    EXPECT_TRUE(settings().hotkeys->empty());
}

TEST_F(AppSettingsLoading, one_unknown_action_rejects_all_hotkeys) {
    storeData("hotkeys", R"(["toggleZoom",{"keyCode":9,"modifiers":256,"action":"toggleZoom"},)"
                         R"("paint",{"keyCode":9,"modifiers":256,"action":"undo"}])");
    EXPECT_EQ(settings().hotkeys.get(), HotkeyConfig::defaults());
    EXPECT_EQ(storedText("hotkeys"), *serializeJSON(encodeJSON(HotkeyConfig::defaults())));
}

TEST_F(AppSettingsLoading, a_legacy_hotkey_is_rewritten_in_its_present_form) {
    storeData(
        "hotkeys",
        R"(["toggleSpotlight",{"keyCode":26,"modifiers":1179648,"action":"toggleSpotlight"}])");
    EXPECT_EQ(settings().hotkeys.get(), (HotkeyMap{{HotkeyAction::toggleSpotlight,
                                                    {37, 768, HotkeyAction::toggleSpotlight}}}));
    EXPECT_EQ(storedText("hotkeys"),
              R"(["toggleSpotlight",{"keyCode":37,"modifiers":768,"action":"toggleSpotlight"}])");
}

TEST_F(AppSettingsLoading, a_hotkey_migrates_by_its_own_action_and_not_by_its_key) {
    storeData("hotkeys", R"(["undo",{"keyCode":15,"modifiers":768,"action":"toggleZoom"}])");
    EXPECT_EQ(settings().hotkeys.get(),
              (HotkeyMap{{HotkeyAction::undo, {7, 768, HotkeyAction::toggleZoom}}}));
}

TEST_F(AppSettingsLoading, one_unreadable_key_leaves_the_others_alone) {
    store("lineWidth", std::string("wide"));
    store("haloSize", 77.0);
    store("selectedTool", std::string("arrow"));
    EXPECT_EQ(settings().lineWidth.get(), 4.0);
    EXPECT_EQ(settings().haloSize.get(), 77.0);
    EXPECT_EQ(settings().selectedTool.get(), DrawingTool::arrow);
}

TEST_F(AppSettingsLoading, a_key_of_nobody_is_left_alone) {
    store("windowPlacement", std::string("somewhere"));
    settings();
    EXPECT_EQ(stored("windowPlacement"), DefaultsValue(std::string("somewhere")));
}

} // namespace quillon::test
