#include "settings/SettingsTest.h"

namespace quillon::test {

namespace {

struct CursorSettings : SettingsTest {
    void open() { view.select(SettingsTab::cursor); }
    ToggleRow enable() { return row<ToggleRow>(0, 0); }

    CursorHighlightManager& manager = CursorHighlightManager::shared();
};

using Outline = std::vector<std::string>;

} // namespace

TEST_F(CursorSettings, it_shows_two_sections) {
    open();
    EXPECT_EQ(form().navigationTitle, "Cursor Halo Settings");
    EXPECT_EQ(outline(form()),
              (Outline{"[Cursor Halo]", "Enable Cursor Halo", "Halo Shape", "Halo Size",
                       "Halo Color", "[Click Animation]", "Animation Type"}));
}

TEST_F(CursorSettings, when_it_opens_the_store_wins_over_the_manager) {
    manager.isEnabled = true;
    open();
    EXPECT_FALSE(manager.isEnabled);
    EXPECT_FALSE(enable().isOn.get());
    EXPECT_FALSE(settings().isCursorHaloEnabled);
}

TEST_F(CursorSettings, a_stored_switch_takes_effect_when_it_opens) {
    settings().isCursorHaloEnabled = true;
    EXPECT_FALSE(manager.isEnabled);
    open();
    EXPECT_TRUE(manager.isEnabled);
    EXPECT_TRUE(enable().isOn.get());
}

TEST_F(CursorSettings, the_stored_looks_reach_the_manager_after_its_switch_when_it_opens) {
    settings().isCursorHaloEnabled = true;
    settings().haloShape = HaloShape::rhombus;
    settings().haloColor = Color::red;
    settings().haloSize = 77.0;
    settings().clickAnimationType = ClickAnimationType::ripple;
    manager.updateSettings(HaloShape::ring, Color::blue, 20, ClickAnimationType::none);
    bool wasEnabled = false;
    const auto observed =
        manager.haloShape.sinkDroppingFirst([&](HaloShape) { wasEnabled = manager.isEnabled; });
    open();
    EXPECT_TRUE(wasEnabled);
    EXPECT_EQ(manager.haloShape.get(), HaloShape::rhombus);
    EXPECT_EQ(manager.haloColor.get(), Color::red);
    EXPECT_EQ(manager.haloSize.get(), 77);
    EXPECT_EQ(manager.clickAnimationType.get(), ClickAnimationType::ripple);
}

TEST_F(CursorSettings, the_switch_turns_the_manager_and_the_store_follows) {
    open();
    EXPECT_EQ(enable().style, ToggleStyle::switchStyle);
    enable().isOn.set(true);
    EXPECT_TRUE(manager.isEnabled);
    EXPECT_TRUE(settings().isCursorHaloEnabled);
}

TEST_F(CursorSettings, the_store_follows_whoever_turns_the_manager_while_it_is_open) {
    open();
    manager.isEnabled = true;
    EXPECT_TRUE(settings().isCursorHaloEnabled);
    host.userDefaults.writes.clear();
    manager.isEnabled = true;
    EXPECT_TRUE(host.userDefaults.writes.empty());
}

TEST_F(CursorSettings, the_store_does_not_follow_while_it_is_not_open) {
    manager.isEnabled = true;
    EXPECT_FALSE(settings().isCursorHaloEnabled);
    open();
    view.select(SettingsTab::about);
    manager.isEnabled = true;
    EXPECT_FALSE(settings().isCursorHaloEnabled);
}

TEST_F(CursorSettings, the_store_does_not_follow_after_the_window_has_closed) {
    open();
    view.onDisappear();
    manager.isEnabled = true;
    EXPECT_FALSE(settings().isCursorHaloEnabled);
}

TEST_F(CursorSettings, a_reset_switches_the_manager_off_and_its_switch_goes_on_leading) {
    open();
    const auto toggle = enable();
    toggle.isOn.set(true);
    view.toolbar().front().action();
    EXPECT_FALSE(toggle.isOn.get());
    EXPECT_FALSE(manager.isEnabled);
    EXPECT_FALSE(settings().isCursorHaloEnabled);
    toggle.isOn.set(true);
    EXPECT_TRUE(settings().isCursorHaloEnabled);
}

TEST_F(CursorSettings, a_halo_runs_through_a_reset_on_another_tab_until_its_own_opens) {
    settings().isCursorHaloEnabled = true;
    manager.isEnabled = true;
    view.toolbar().front().action();
    EXPECT_TRUE(manager.isEnabled);
    EXPECT_FALSE(settings().isCursorHaloEnabled);
    open();
    EXPECT_FALSE(manager.isEnabled);
}

TEST_F(CursorSettings, a_turn_of_the_manager_is_announced) {
    open();
    int changes = 0;
    const auto observed = view.objectWillChange.sink([&] { ++changes; });
    manager.isEnabled = true;
    EXPECT_GT(changes, 0);
}

TEST_F(CursorSettings, the_shapes_are_offered_by_their_names) {
    open();
    const auto shapes = row<PickerRow>(0, 1);
    EXPECT_EQ(shapes.style, PickerStyle::automatic);
    EXPECT_EQ(shapes.entries, (Outline{"Ring", "Squircle", "Rhombus"}));
    shapes.select(2);
    EXPECT_EQ(settings().haloShape.get(), HaloShape::rhombus);
}

TEST_F(CursorSettings, the_size_goes_from_10_to_100_by_1_and_shows_a_bare_number) {
    open();
    const auto size = row<SliderRow>(0, 2);
    EXPECT_EQ(size.minimum, 10);
    EXPECT_EQ(size.maximum, 100);
    EXPECT_EQ(size.step, 1);
    EXPECT_EQ(size.sliderWidth, 150);
    EXPECT_EQ(size.valueWidth, 40);
    EXPECT_FALSE(size.ends);
    EXPECT_EQ(size.text(), "40");
    size.moveTo(size.lastStop());
    EXPECT_EQ(settings().haloSize.get(), 100);
    EXPECT_EQ(manager.haloSize.get(), 100);
}

TEST_F(CursorSettings, the_color_is_only_shown) {
    open();
    settings().haloColor = Color::green;
    EXPECT_EQ(row<ColorPickerRow>(0, 3).color.get(), Color::green);
}

TEST_F(CursorSettings, the_animations_are_offered_with_a_capital) {
    open();
    const auto animations = row<PickerRow>(1, 0);
    EXPECT_EQ(animations.style, PickerStyle::automatic);
    EXPECT_EQ(animations.entries, (Outline{"Pulse", "Ripple", "None"}));
    animations.select(1);
    EXPECT_EQ(settings().clickAnimationType.get(), ClickAnimationType::ripple);
    EXPECT_EQ(manager.clickAnimationType.get(), ClickAnimationType::ripple);
}

} // namespace quillon::test
