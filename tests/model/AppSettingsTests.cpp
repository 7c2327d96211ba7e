#include "model/AppSettings.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace quillon::test {

namespace {

class AppSettingsTest : public testing::Test {
protected:
    AppSettingsTest() { host.userDefaults.writes.clear(); }

    /// Turns every setting away from its default.
    void changeEverything() {
        settings.isAnnotationEnabled = true;
        settings.isWhiteboardMode = true;
        settings.isCursorHaloEnabled = true;
        settings.isSpotlightEnabled = true;
        settings.isZoomEnabled = true;
        settings.selectedTool = DrawingTool::arrow;
        settings.selectedColor = Color(0.1, 0.2, 0.3, 0.4);
        settings.lineWidth = 9.25;
        settings.quickColors = std::vector{Color::black};
        settings.haloShape = HaloShape::rhombus;
        settings.haloColor = Color(0.5, 0.6, 0.7, 0.8);
        settings.haloSize = 61;
        settings.clickAnimationType = ClickAnimationType::none;
        settings.spotlightIntensity = 0.1;
        settings.spotlightRadius = 333;
        settings.magnificationFactor = MagnificationFactor::x8;
        settings.zoomWindowSize = 222;
        settings.zoomWindowOffsetX = -1;
        settings.zoomWindowOffsetY = -2;
        settings.showZoomCrosshair = false;
        settings.autoEraseTimer = AutoEraseTimer::tenSeconds;
        settings.showFloatingToolbar = false;
        settings.toolbarPosition = ToolbarPosition{12, 34};
        settings.hotkeys = HotkeyMap{{HotkeyAction::undo, {6, 256, HotkeyAction::undo}}};
        settings.launchAtLogin = true;
    }

    FakeHost host;
    AppSettings& settings = AppSettings::shared();
};

DefaultsValue storedAt(const FakeDefaults& defaults, std::string_view key) {
    return defaults.object(key).value();
}

} // namespace

TEST_F(AppSettingsTest, there_is_one_instance) {
    EXPECT_EQ(&AppSettings::shared(), &settings);
}

TEST_F(AppSettingsTest, an_assignment_announces_then_delivers_then_stores_then_persists) {
    std::vector<std::string> steps;
    const auto state = [&] {
        const bool isStored = settings.lineWidth.get() == 5.0;
        const bool isPersisted = storedAt(host.userDefaults, "lineWidth") == DefaultsValue(5.0);
        return std::string(isStored ? "stored" : "old") + (isPersisted ? " persisted" : "");
    };
    const auto announced =
        settings.objectWillChange.sink([&] { steps.push_back("announced " + state()); });
    const auto delivered = settings.lineWidth.sinkDroppingFirst([&](double value) {
        steps.push_back("delivered " + std::to_string(value) + " " + state());
    });
    settings.lineWidth = 5.0;
    steps.push_back(state());
    EXPECT_EQ(steps, (std::vector<std::string>{"announced old", "delivered 5.000000 old",
                                               "stored persisted"}));
}

TEST_F(AppSettingsTest, a_new_subscriber_hears_the_present_value_and_then_every_assignment) {
    std::vector<DrawingTool> heard;
    const auto subscription =
        settings.selectedTool.sink([&](DrawingTool tool) { heard.push_back(tool); });
    settings.selectedTool = DrawingTool::line;
    settings.selectedTool = DrawingTool::line;
    EXPECT_EQ(heard, (std::vector{DrawingTool::pen, DrawingTool::line, DrawingTool::line}));
}

TEST_F(AppSettingsTest, each_property_has_a_publisher_of_its_own) {
    int heard = 0;
    const auto subscription = settings.haloSize.sinkDroppingFirst([&](double) { ++heard; });
    settings.spotlightRadius = 1;
    settings.lineWidth = 2;
    EXPECT_EQ(heard, 0);
    settings.haloSize = 3;
    EXPECT_EQ(heard, 1);
}

TEST_F(AppSettingsTest, every_assignment_is_one_write_also_of_an_equal_value) {
    settings.haloSize = 40.0;
    settings.haloSize = 40.0;
    EXPECT_EQ(host.userDefaults.writes, (std::vector<std::string>{"haloSize", "haloSize"}));
}

TEST_F(AppSettingsTest, a_change_through_a_binding_takes_the_same_path) {
    std::vector<double> heard;
    const auto subscription =
        settings.haloSize.sinkDroppingFirst([&](double size) { heard.push_back(size); });
    settings.haloSize.binding().set(55);
    EXPECT_EQ(heard, std::vector{55.0});
    EXPECT_EQ(storedAt(host.userDefaults, "haloSize"), DefaultsValue(55.0));
}

TEST_F(AppSettingsTest, a_list_changed_in_place_is_persisted_whole) {
    settings.quickColors.modify([](std::vector<Color>& colors) { colors.resize(1, Color::red); });
    EXPECT_EQ(host.userDefaults.data("quickColors")->bytes,
              R"([{"red":1.0,"green":0.231,"blue":0.188,"alpha":1.0}])");
}

TEST_F(AppSettingsTest, nothing_is_clamped_or_rounded) {
    settings.spotlightIntensity = 5.0;
    settings.lineWidth = -1.0 / 3;
    EXPECT_EQ(settings.spotlightIntensity.get(), 5.0);
    EXPECT_EQ(storedAt(host.userDefaults, "spotlightIntensity"), DefaultsValue(5.0));
    EXPECT_EQ(storedAt(host.userDefaults, "lineWidth"), DefaultsValue(-1.0 / 3));
}

TEST_F(AppSettingsTest, a_colour_that_does_not_encode_leaves_the_stored_one_in_place) {
    settings.haloColor = Color::red;
    const auto stored = storedAt(host.userDefaults, "haloColor");
    host.userDefaults.writes.clear();
    settings.haloColor = Color(std::numeric_limits<double>::quiet_NaN(), 0, 0);
    EXPECT_TRUE(host.userDefaults.writes.empty());
    EXPECT_EQ(storedAt(host.userDefaults, "haloColor"), stored);
    EXPECT_TRUE(std::isnan(settings.haloColor->resolved().red));
}

TEST_F(AppSettingsTest, one_colour_that_does_not_encode_keeps_the_whole_list_from_the_store) {
    const Color endless(std::numeric_limits<double>::infinity(), 0, 0);
    settings.quickColors = std::vector{Color::red, endless};
    EXPECT_TRUE(host.userDefaults.writes.empty());
    EXPECT_EQ(settings.quickColors->size(), 2U);
}

TEST_F(AppSettingsTest, launch_at_login_changes_its_stored_key_and_nothing_else) {
    settings.launchAtLogin = true;
    EXPECT_EQ(storedAt(host.userDefaults, "launchAtLogin"), DefaultsValue(true));
    EXPECT_EQ(host.userDefaults.writes, std::vector<std::string>{"launchAtLogin"});
    EXPECT_TRUE(host.mainQueue.isIdle());
    EXPECT_TRUE(host.windows.calls.empty());
}

TEST_F(AppSettingsTest, a_setting_posts_no_notification) {
    int posted = 0;
    const auto observer = host.notificationCenter().addObserver(
        "annotationModeChanged", [&](const Notification&) { ++posted; });
    settings.isAnnotationEnabled = true;
    EXPECT_EQ(posted, 0);
}

TEST_F(AppSettingsTest, a_reset_rewrites_all_25_keys_in_order_and_removes_none) {
    changeEverything();
    const auto keys = host.userDefaults.writes;
    host.userDefaults.writes.clear();
    settings.resetToDefaults();
    EXPECT_EQ(keys.size(), 25U);
    EXPECT_EQ(host.userDefaults.writes, keys);
    EXPECT_EQ(host.userDefaults.values.size(), 25U);
}

TEST_F(AppSettingsTest, a_reset_stores_what_a_first_start_stores) {
    const auto atFirst = host.userDefaults.values;
    changeEverything();
    for (const auto& [key, value] : host.userDefaults.values) {
        EXPECT_NE(value, atFirst.at(key)) << key;
    }
    settings.resetToDefaults();
    EXPECT_EQ(host.userDefaults.values, atFirst);
}

TEST_F(AppSettingsTest, a_reset_switches_the_modes_off_and_unbinds_undo_and_redo) {
    changeEverything();
    settings.resetToDefaults();
    EXPECT_FALSE(settings.isAnnotationEnabled.get());
    EXPECT_FALSE(settings.isWhiteboardMode.get());
    EXPECT_FALSE(settings.isCursorHaloEnabled.get());
    EXPECT_FALSE(settings.isSpotlightEnabled.get());
    EXPECT_FALSE(settings.isZoomEnabled.get());
    EXPECT_EQ(settings.hotkeys.get(), HotkeyConfig::defaults());
}

TEST_F(AppSettingsTest, a_reset_reaches_every_publisher_also_of_what_stays_equal) {
    int announcements = 0;
    int bindings = 0;
    const auto announced = settings.objectWillChange.sink([&] { ++announcements; });
    const auto bound = settings.hotkeys.sinkDroppingFirst([&](const HotkeyMap&) { ++bindings; });
    settings.resetToDefaults();
    EXPECT_EQ(announcements, 25);
    EXPECT_EQ(bindings, 1);
}

TEST(AppSettingsAcrossRestarts, every_setting_comes_back_as_it_was_left) {
    std::map<std::string, DefaultsValue, std::less<>> disk;
    {
        FakeHost host;
        AppSettings& settings = AppSettings::shared();
        settings.spotlightIntensity = 5.0;
        settings.selectedTool = DrawingTool::circle;
        settings.selectedColor = Color(-0.5, 0.1 + 0.2, 1.5, 0.25);
        settings.quickColors = std::vector<Color>();
        settings.toolbarPosition = ToolbarPosition{12.5, -7};
        settings.hotkeys = HotkeyMap{{HotkeyAction::redo, {6, 0x1B00, HotkeyAction::redo}}};
        settings.showFloatingToolbar = false;
        settings.autoEraseTimer = AutoEraseTimer::fiveSeconds;
        disk = host.userDefaults.values;
    }
    FakeHost host;
    host.userDefaults.values = disk;
    AppSettings& settings = AppSettings::shared();
    EXPECT_EQ(settings.spotlightIntensity.get(), 5.0);
    EXPECT_EQ(settings.selectedTool.get(), DrawingTool::circle);
    EXPECT_EQ(settings.selectedColor.get(), Color(-0.5, 0.1 + 0.2, 1.5, 0.25));
    EXPECT_TRUE(settings.quickColors->empty());
    EXPECT_EQ(settings.toolbarPosition.get(), (ToolbarPosition{12.5, -7}));
    EXPECT_EQ(settings.hotkeys.get(),
              (HotkeyMap{{HotkeyAction::redo, {6, 0x1B00, HotkeyAction::redo}}}));
    EXPECT_FALSE(settings.showFloatingToolbar.get());
    EXPECT_EQ(settings.autoEraseTimer.get(), AutoEraseTimer::fiveSeconds);
    EXPECT_EQ(host.userDefaults.values, disk);
}

TEST(SettingsKey, each_is_its_own_name_and_an_unknown_string_is_none) {
    EXPECT_EQ(allCases<SettingsKey>().size(), 25U);
    EXPECT_EQ(fromRawValue<SettingsKey>("zoomWindowOffsetY"), SettingsKey::zoomWindowOffsetY);
    EXPECT_EQ(fromRawValue<SettingsKey>("LineWidth"), std::nullopt);
}

} // namespace quillon::test
