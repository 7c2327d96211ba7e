#include "settings/SettingsTest.h"

namespace quillon::test {

namespace {

struct SpotlightSettings : SettingsTest {
    void open() { view.select(SettingsTab::spotlight); }
    SliderRow slider(std::size_t section, std::size_t index) {
        return row<SliderRow>(section, index);
    }
    static void expectRange(const SliderRow& slider, double minimum, double maximum, double step,
                            CGFloat valueWidth) {
        EXPECT_EQ(slider.minimum, minimum) << slider.label;
        EXPECT_EQ(slider.maximum, maximum) << slider.label;
        EXPECT_EQ(slider.step, step) << slider.label;
        EXPECT_EQ(slider.sliderWidth, 150) << slider.label;
        EXPECT_EQ(slider.valueWidth, valueWidth) << slider.label;
        EXPECT_FALSE(slider.ends) << slider.label;
    }

    SpotlightManager& manager = SpotlightManager::shared();
};

using Outline = std::vector<std::string>;

} // namespace

TEST_F(SpotlightSettings, it_shows_two_sections) {
    open();
    EXPECT_EQ(form().navigationTitle, "Spotlight & Zoom Settings");
    EXPECT_EQ(outline(form()),
              (Outline{"[Spotlight]", "Enable Spotlight", "Dimming Intensity", "Cutout Radius",
                       "[Zoom Lens]", "Enable Zoom Lens", "Magnification", "Window Size",
                       "Offset X (Right)", "Offset Y (Up)", "Show Crosshair"}));
}

TEST_F(SpotlightSettings, the_sliders_have_their_ranges_and_steps) {
    open();
    expectRange(slider(0, 1), 0.1, 0.95, 0.05, 50);
    expectRange(slider(0, 2), 30, 500, 10, 50);
    expectRange(slider(1, 2), 100, 500, 10, 60);
    expectRange(slider(1, 3), 0, 200, 5, 50);
    expectRange(slider(1, 4), 0, 200, 5, 50);
}

TEST_F(SpotlightSettings, the_intensity_shows_percent_from_10_to_95) {
    open();
    const auto intensity = slider(0, 1);
    EXPECT_EQ(intensity.text(), "70%");
    intensity.moveTo(intensity.lastStop());
    EXPECT_EQ(intensity.text(), "95%");
    intensity.moveTo(0);
    EXPECT_EQ(intensity.text(), "10%");
}

TEST_F(SpotlightSettings, a_product_that_falls_just_short_of_an_integer_reads_one_lower) {
    open();
    settings().spotlightIntensity = 0.29;
    EXPECT_EQ(slider(0, 1).text(), "28%");
}

TEST_F(SpotlightSettings, the_radius_shows_a_bare_number_and_the_lens_shows_points) {
    open();
    EXPECT_EQ(slider(0, 2).text(), "150");
    EXPECT_EQ(slider(1, 2).text(), "200pt");
    EXPECT_EQ(slider(1, 3).text(), "30pt");
    EXPECT_EQ(slider(1, 4).text(), "30pt");
}

TEST_F(SpotlightSettings, an_offset_beyond_the_range_stays_until_the_slider_is_moved) {
    settings().zoomWindowOffsetX = 300.0;
    open();
    const auto offset = slider(1, 3);
    EXPECT_EQ(offset.text(), "300pt");
    EXPECT_EQ(offset.stop(), offset.lastStop());
    EXPECT_EQ(settings().zoomWindowOffsetX.get(), 300);
    offset.moveTo(offset.lastStop());
    EXPECT_EQ(settings().zoomWindowOffsetX.get(), 200);
}

TEST_F(SpotlightSettings, each_slider_writes_its_own_setting) {
    open();
    slider(0, 1).moveTo(2);
    slider(0, 2).moveTo(1);
    slider(1, 2).moveTo(3);
    slider(1, 3).moveTo(1);
    slider(1, 4).moveTo(2);
    EXPECT_DOUBLE_EQ(settings().spotlightIntensity.get(), 0.2);
    EXPECT_EQ(settings().spotlightRadius.get(), 40);
    EXPECT_EQ(settings().zoomWindowSize.get(), 130);
    EXPECT_EQ(settings().zoomWindowOffsetX.get(), 5);
    EXPECT_EQ(settings().zoomWindowOffsetY.get(), 10);
    EXPECT_DOUBLE_EQ(manager.spotlightIntensity.get(), 0.2);
    EXPECT_EQ(manager.spotlightRadius.get(), 40);
}

TEST_F(SpotlightSettings, the_magnifications_are_offered_by_their_names) {
    open();
    const auto magnification = row<PickerRow>(1, 1);
    EXPECT_EQ(magnification.style, PickerStyle::automatic);
    EXPECT_EQ(magnification.entries, (Outline{"1.5x", "2x", "4x", "8x"}));
    EXPECT_EQ(magnification.selection(), 1U);
    magnification.select(3);
    EXPECT_EQ(settings().magnificationFactor.get(), MagnificationFactor::x8);
}

TEST_F(SpotlightSettings, the_crosshair_is_a_setting_of_the_store) {
    open();
    const auto crosshair = row<ToggleRow>(1, 5);
    EXPECT_TRUE(crosshair.isOn.get());
    EXPECT_EQ(crosshair.style, ToggleStyle::switchStyle);
    crosshair.isOn.set(false);
    EXPECT_FALSE(settings().showZoomCrosshair);
}

TEST_F(SpotlightSettings, when_it_opens_the_store_wins_over_the_manager) {
    manager.isSpotlightEnabled = true;
    manager.isZoomEnabled = true;
    open();
    EXPECT_FALSE(manager.isSpotlightEnabled);
    EXPECT_FALSE(manager.isZoomEnabled);
    EXPECT_FALSE(settings().isSpotlightEnabled);
    EXPECT_FALSE(settings().isZoomEnabled);
}

TEST_F(SpotlightSettings, stored_switches_take_effect_when_it_opens_the_spotlight_first) {
    settings().isSpotlightEnabled = true;
    settings().isZoomEnabled = true;
    bool wasSpotlightOn = false;
    const auto observed = manager.isZoomEnabled.sinkDroppingFirst(
        [&](bool) { wasSpotlightOn = manager.isSpotlightEnabled; });
    open();
    EXPECT_TRUE(manager.isSpotlightEnabled);
    EXPECT_TRUE(manager.isZoomEnabled);
    EXPECT_TRUE(wasSpotlightOn);
}

TEST_F(SpotlightSettings, the_switches_turn_the_manager_and_the_store_follows) {
    open();
    EXPECT_EQ(row<ToggleRow>(0, 0).style, ToggleStyle::switchStyle);
    EXPECT_EQ(row<ToggleRow>(1, 0).style, ToggleStyle::switchStyle);
    row<ToggleRow>(0, 0).isOn.set(true);
    EXPECT_TRUE(manager.isSpotlightEnabled);
    EXPECT_TRUE(settings().isSpotlightEnabled);
    EXPECT_FALSE(settings().isZoomEnabled);
    row<ToggleRow>(1, 0).isOn.set(true);
    EXPECT_TRUE(manager.isZoomEnabled);
    EXPECT_TRUE(settings().isZoomEnabled);
}

TEST_F(SpotlightSettings,
       a_reset_switches_spotlight_and_lens_off_and_their_switches_go_on_leading) {
    open();
    const auto spotlight = row<ToggleRow>(0, 0);
    const auto zoom = row<ToggleRow>(1, 0);
    spotlight.isOn.set(true);
    zoom.isOn.set(true);
    view.toolbar().front().action();
    EXPECT_FALSE(spotlight.isOn.get());
    EXPECT_FALSE(zoom.isOn.get());
    EXPECT_FALSE(manager.isSpotlightEnabled);
    EXPECT_FALSE(manager.isZoomEnabled);
    EXPECT_FALSE(settings().isSpotlightEnabled);
    EXPECT_FALSE(settings().isZoomEnabled);
    spotlight.isOn.set(true);
    EXPECT_TRUE(settings().isSpotlightEnabled);
}

TEST_F(SpotlightSettings, the_store_follows_whoever_turns_the_manager_while_it_is_open) {
    open();
    manager.isSpotlightEnabled = true;
    manager.isZoomEnabled = true;
    EXPECT_TRUE(settings().isSpotlightEnabled);
    EXPECT_TRUE(settings().isZoomEnabled);
    view.select(SettingsTab::about);
    manager.isSpotlightEnabled = false;
    manager.isZoomEnabled = false;
    EXPECT_TRUE(settings().isSpotlightEnabled);
    EXPECT_TRUE(settings().isZoomEnabled);
}

} // namespace quillon::test
