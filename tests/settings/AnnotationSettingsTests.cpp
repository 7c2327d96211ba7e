#include "settings/SettingsTest.h"

namespace quillon::test {

namespace {

struct AnnotationSettings : SettingsTest {
    AnnotationSettings() { view.select(SettingsTab::annotation); }

    SliderRow lineWidth() { return row<SliderRow>(0, 1); }
    ToggleRow whiteboard() { return row<ToggleRow>(1, 0); }
};

using Outline = std::vector<std::string>;

} // namespace

TEST_F(AnnotationSettings, it_shows_two_sections) {
    EXPECT_EQ(form().navigationTitle, "Annotation Settings");
    EXPECT_EQ(outline(form()),
              (Outline{"[Drawing Tools]", "Default Color", "Line Width", "Auto-Erase",
                       "[Whiteboard Mode]", "Enable Whiteboard Mode"}));
}

TEST_F(AnnotationSettings, the_default_color_is_edited_with_its_opacity) {
    const auto swatch = row<SwatchRow>(0, 0).swatch;
    EXPECT_TRUE(ColorPickerSwatch::supportsOpacity);
    EXPECT_EQ(ColorPickerSwatch::size, (CGSize{32, 24}));
    EXPECT_EQ(swatch.color.get(), Color::cyan);
    swatch.color.set(Color(0.5, 0.25, 0, 0.5));
    EXPECT_EQ(settings().selectedColor.get(), Color(0.5, 0.25, 0, 0.5));
}

TEST_F(AnnotationSettings, the_line_width_goes_from_1_to_30_by_1) {
    const auto slider = lineWidth();
    EXPECT_EQ(slider.minimum, 1);
    EXPECT_EQ(slider.maximum, 30);
    EXPECT_EQ(slider.step, 1);
    EXPECT_EQ(slider.sliderWidth, 200);
    EXPECT_EQ(slider.valueWidth, 40);
    ASSERT_TRUE(slider.ends);
    EXPECT_EQ(slider.ends->symbol, "lineweight");
}

TEST_F(AnnotationSettings, the_line_width_carries_its_unit) {
    EXPECT_EQ(lineWidth().text(), "4pt");
    lineWidth().moveTo(lineWidth().lastStop());
    EXPECT_EQ(settings().lineWidth.get(), 30);
    EXPECT_EQ(lineWidth().text(), "30pt");
}

TEST_F(AnnotationSettings, a_width_between_two_stops_cannot_be_set_but_shows_truncated) {
    settings().lineWidth = 7.5;
    EXPECT_EQ(lineWidth().text(), "7pt");
    EXPECT_EQ(settings().lineWidth.get(), 7.5);
    for (int stop = 0; stop <= lineWidth().lastStop(); ++stop) {
        lineWidth().moveTo(stop);
        EXPECT_EQ(settings().lineWidth.get(), stop + 1);
    }
}

TEST_F(AnnotationSettings, auto_erase_offers_every_time) {
    const auto times = row<PickerRow>(0, 2);
    EXPECT_EQ(times.style, PickerStyle::automatic);
    EXPECT_EQ(times.entries, (Outline{"Off", "2 Seconds", "5 Seconds", "10 Seconds"}));
    EXPECT_EQ(times.selection(), 0U);
    times.select(2);
    EXPECT_EQ(settings().autoEraseTimer.get(), AutoEraseTimer::fiveSeconds);
}

TEST_F(AnnotationSettings, switching_the_whiteboard_on_switches_annotation_on_after_it) {
    std::vector<std::string> changes;
    const auto whiteboardChanges = settings().isWhiteboardMode.sinkDroppingFirst(
        [&](bool) { changes.emplace_back("whiteboard"); });
    const auto annotationChanges = settings().isAnnotationEnabled.sinkDroppingFirst(
        [&](bool) { changes.emplace_back("annotation"); });
    EXPECT_EQ(whiteboard().style, ToggleStyle::switchStyle);
    whiteboard().isOn.set(true);
    EXPECT_TRUE(settings().isWhiteboardMode);
    EXPECT_TRUE(settings().isAnnotationEnabled);
    EXPECT_EQ(changes, (Outline{"whiteboard", "annotation"}));
}

TEST_F(AnnotationSettings, switching_the_whiteboard_off_leaves_annotation_as_it_is) {
    whiteboard().isOn.set(true);
    whiteboard().isOn.set(false);
    EXPECT_FALSE(settings().isWhiteboardMode);
    EXPECT_TRUE(settings().isAnnotationEnabled);

    settings().isAnnotationEnabled = false;
    whiteboard().isOn.set(false);
    EXPECT_FALSE(settings().isAnnotationEnabled);
}

TEST_F(AnnotationSettings, a_change_in_place_of_the_whiteboard_switch_has_the_same_effect) {
    whiteboard().isOn.modify([](bool& isOn) { isOn = !isOn; });
    EXPECT_TRUE(whiteboard().isOn.get());
    EXPECT_TRUE(settings().isAnnotationEnabled);
}

} // namespace quillon::test
