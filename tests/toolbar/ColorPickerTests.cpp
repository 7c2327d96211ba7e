#include "toolbar/ColorPickerView.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillon::test {
namespace {

struct ColorPicker : testing::Test {
    Color selected{0.2, 0.4, 0.8};
    std::vector<Color> quick = Color::quickSelectDefaults();
    int writes = 0;
    Binding<Color> selectedBinding{[this]() -> const Color& { return selected; },
                                   [this](Color color) {
                                       selected = color;
                                       ++writes;
                                   },
                                   [this](const std::function<void(Color&)>& change) {
                                       change(selected);
                                       ++writes;
                                   }};
    ColorPickerView picker{selectedBinding, Binding<std::vector<Color>>::to(quick)};

    void giveQuickColors(std::size_t count) { quick.assign(count, Color::red); }
};

TEST_F(ColorPicker, the_numbers_start_as_full_red_and_are_those_of_the_colour_once_it_appears) {
    EXPECT_EQ(picker.hue(), 0);
    EXPECT_EQ(picker.saturation(), 1);
    EXPECT_EQ(picker.brightness(), 1);
    EXPECT_EQ(picker.alpha(), 1);
    picker.appeared();
    EXPECT_NEAR(picker.hue(), 220.0 / 360, 1e-9);
    EXPECT_NEAR(picker.saturation(), 0.75, 1e-9);
    EXPECT_NEAR(picker.brightness(), 0.8, 1e-9);
    EXPECT_EQ(picker.alpha(), 1);
}

TEST_F(ColorPicker, appearing_writes_the_colour_back_as_its_equal) {
    picker.appeared();
    EXPECT_GT(writes, 0);
    const auto written = selected.nsColor().getRedGreenBlueAlpha();
    EXPECT_NEAR(written.red, 0.2, 1e-9);
    EXPECT_NEAR(written.green, 0.4, 1e-9);
    EXPECT_NEAR(written.blue, 0.8, 1e-9);
}

TEST_F(ColorPicker, appearing_with_the_very_numbers_writes_nothing) {
    selected = Color(1, 0, 0);
    picker.appeared();
    EXPECT_EQ(writes, 0);
}

TEST_F(ColorPicker, a_number_that_changes_makes_the_colour_anew) {
    selected = Color(1, 0, 0);
    picker.appeared();
    picker.brightnessChannel().value.set(0.5);
    EXPECT_EQ(selected, Color(0.5, 0, 0));
    picker.opacityChannel().value.set(0.25);
    EXPECT_EQ(selected, Color(0.5, 0, 0, 0.25));
    EXPECT_EQ(writes, 2);
}

TEST_F(ColorPicker, a_number_that_stays_the_same_writes_nothing) {
    selected = Color(1, 0, 0);
    picker.appeared();
    picker.brightnessChannel().value.set(1);
    EXPECT_EQ(writes, 0);
}

TEST_F(ColorPicker, its_own_change_does_not_come_back_and_lose_the_hue_of_a_grey) {
    selected = Color(0, 0, 1);
    picker.appeared();
    const double hue = picker.hue();
    picker.wheel().dragChanged({75, 75}, 150);
    picker.followSelectedColor();
    EXPECT_EQ(picker.saturation(), 0);
    EXPECT_EQ(picker.hue(), 0.25);
    picker.brightnessChannel().value.set(0);
    picker.followSelectedColor();
    picker.brightnessChannel().value.set(1);
    EXPECT_EQ(picker.hue(), 0.25);
    EXPECT_NE(picker.hue(), hue);
}

TEST_F(ColorPicker, the_numbers_follow_when_somebody_else_changes_the_colour) {
    picker.appeared();
    const int before = writes;
    selected = Color(0, 1, 0, 0.5);
    picker.followSelectedColor();
    EXPECT_NEAR(picker.hue(), 1.0 / 3, 1e-9);
    EXPECT_EQ(picker.alpha(), 0.5);
    EXPECT_EQ(writes, before);
    EXPECT_EQ(selected, Color(0, 1, 0, 0.5));
}

TEST_F(ColorPicker, the_wheel_paints_with_the_present_brightness) {
    picker.appeared();
    EXPECT_NEAR(picker.wheel().brightness(), 0.8, 1e-9);
    picker.brightnessChannel().value.set(0.3);
    EXPECT_EQ(picker.wheel().brightness(), 0.3);
}

TEST_F(ColorPicker, percentages_are_truncated) {
    selected = Color(1, 0, 0);
    picker.appeared();
    EXPECT_EQ(picker.brightnessChannel().percentage, "100%");
    picker.brightnessChannel().value.set(0.999);
    EXPECT_EQ(picker.brightnessChannel().percentage, "99%");
    picker.opacityChannel().value.set(0);
    EXPECT_EQ(picker.opacityChannel().percentage, "0%");
}

TEST_F(ColorPicker, the_brightness_slider_has_the_colour_at_full_opacity) {
    selected = Color(0.5, 0, 0, 0.2);
    picker.appeared();
    EXPECT_EQ(picker.brightnessChannel().accent, Color(0.5, 0, 0, 1));
    EXPECT_EQ(picker.opacityChannel().accent, std::nullopt);
    EXPECT_EQ(picker.brightnessChannel().title, "Brightness");
    EXPECT_EQ(picker.opacityChannel().title, "Opacity");
}

TEST_F(ColorPicker, white_is_all_ones_in_hexadecimal) {
    EXPECT_EQ(colorHex(Color::white), "#FFFFFF");
}

TEST_F(ColorPicker, hexadecimal_components_are_truncated) {
    EXPECT_EQ(colorHex(Color(0.999, 0.5, 0)), "#FE7F00");
}

TEST_F(ColorPicker, opacity_does_not_show_in_hexadecimal) {
    EXPECT_EQ(colorHex(Color(1, 0.5, 0, 0.5)), colorHex(Color(1, 0.5, 0)));
}

TEST_F(ColorPicker, a_component_below_zero_is_not_clamped_in_hexadecimal) {
    EXPECT_EQ(colorHex(Color(0, -0.1, 0)), "#00FFFFFFE700");
}

TEST_F(ColorPicker, components_beyond_one_are_not_clamped_in_hexadecimal) {
    EXPECT_EQ(colorHex(Color(2, 0, 0)), "#1FE0000");
}

TEST_F(ColorPicker, components_are_read_in_the_colours_own_space) {
    EXPECT_EQ(colorHex(Color(ColorSpace::linearSRGB, 0.5, 0.5, 0.5)), "#7F7F7F");
}

TEST(ColorHexDeath, a_component_that_is_not_finite_ends_the_program) {
    const double nothing = std::numeric_limits<double>::quiet_NaN();
    EXPECT_DEATH(colorHex(Color(nothing, 0, 0)), "no integer part");
}

TEST_F(ColorPicker, the_add_button_lies_on_the_last_cell_alone) {
    const auto cells = picker.quickColorCells();
    ASSERT_EQ(cells.size(), 5U);
    for (std::size_t index = 0; index < 4; ++index) {
        EXPECT_FALSE(cells[index].addButton);
    }
    EXPECT_TRUE(cells[4].addButton);
}

TEST_F(ColorPicker, the_add_button_appends_the_current_colour_even_twice) {
    picker.quickColorCells().back().addButton->action();
    picker.quickColorCells().back().addButton->action();
    ASSERT_EQ(quick.size(), 7U);
    EXPECT_EQ(quick[5], selected);
    EXPECT_EQ(quick[6], selected);
}

TEST_F(ColorPicker, the_tenth_colour_takes_the_add_button_away_and_a_removal_brings_it_back) {
    giveQuickColors(9);
    ASSERT_TRUE(picker.quickColorCells()[8].addButton);
    picker.quickColorCells()[8].addButton->action();
    ASSERT_EQ(quick.size(), 10U);
    for (const auto& cell : picker.quickColorCells()) {
        EXPECT_FALSE(cell.addButton);
    }
    picker.quickColorCells()[3].contextMenu[0].action();
    EXPECT_TRUE(picker.quickColorCells().back().addButton);
}

TEST_F(ColorPicker, without_quick_colours_there_is_no_cell_and_nothing_to_add_with) {
    giveQuickColors(1);
    picker.quickColorCells()[0].contextMenu[0].action();
    EXPECT_TRUE(picker.quickColorCells().empty());
}

TEST_F(ColorPicker, removing_takes_out_the_colour_of_that_cell) {
    picker.quickColorCells()[1].contextMenu[0].action();
    EXPECT_EQ(quick, (std::vector<Color>{Color::red, Color::green, Color::cyan, Color::purple}));
}

TEST_F(ColorPicker, a_removal_that_comes_too_late_changes_nothing) {
    const auto cells = picker.quickColorCells();
    giveQuickColors(1);
    cells[4].contextMenu[0].action();
    EXPECT_EQ(quick.size(), 1U);
}

TEST_F(ColorPicker, a_quick_colour_is_never_marked_and_becomes_current_by_a_click) {
    selected = quick[2];
    EXPECT_FALSE(picker.quickColorCells()[2].swatch.isSelected);
    EXPECT_EQ(picker.quickColorCells()[2].swatch.size, 28);
    picker.quickColorCells()[3].action();
    EXPECT_EQ(selected, quick[3]);
}

TEST_F(ColorPicker, the_context_menu_removes_a_colour_or_makes_it_the_current_one) {
    using Role = ColorPickerView::ContextMenuEntry::Role;
    for (const auto& cell : picker.quickColorCells()) {
        ASSERT_EQ(cell.contextMenu.size(), 2U);
        EXPECT_EQ(cell.contextMenu[0].title, "Remove");
        EXPECT_EQ(cell.contextMenu[0].role, Role::destructive);
        EXPECT_EQ(cell.contextMenu[1].title, "Set as Current");
        EXPECT_EQ(cell.contextMenu[1].role, Role::plain);
    }
    picker.quickColorCells()[2].contextMenu[1].action();
    EXPECT_EQ(selected, Color::green);
    EXPECT_EQ(quick.size(), 5U);
}

} // namespace
} // namespace quillon::test
