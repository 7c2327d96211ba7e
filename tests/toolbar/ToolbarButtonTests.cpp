#include "toolbar/ToolbarButton.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

ToolbarButton button() {
    return {.icon = "trash", .label = "Clear", .action = {}};
}

TEST(ToolbarButton, it_is_primary_on_nothing_by_itself) {
    EXPECT_EQ(button().foregroundColor(), SystemColor::labelColor);
    EXPECT_EQ(button().background(), SystemColor::clearColor);
}

TEST(ToolbarButton, a_disabled_one_is_half_of_the_secondary_colour_before_anything_else) {
    ToolbarButton disabled = button();
    disabled.isDisabled = true;
    disabled.isDestructive = true;
    disabled.isSelected = true;
    EXPECT_EQ(disabled.foregroundColor(), SystemColor::secondaryLabelColor.opacity(0.5));
}

TEST(ToolbarButton, a_destructive_one_is_red_also_when_selected) {
    ToolbarButton destructive = button();
    destructive.isDestructive = true;
    destructive.isSelected = true;
    EXPECT_EQ(destructive.foregroundColor(), SystemColor::systemRedColor);
}

TEST(ToolbarButton, a_destructive_one_stays_red_when_hovered_on_the_neutral_tint) {
    ToolbarButton destructive = button();
    destructive.isDestructive = true;
    destructive.isHovered = true;
    EXPECT_EQ(destructive.foregroundColor(), SystemColor::systemRedColor);
    EXPECT_EQ(destructive.background(), SystemColor::labelColor.opacity(0.08));
}

TEST(ToolbarButton, the_selected_look_wins_over_the_hovered_one) {
    ToolbarButton selected = button();
    selected.isSelected = true;
    selected.isHovered = true;
    EXPECT_EQ(selected.foregroundColor(), SystemColor::controlAccentColor);
    EXPECT_EQ(selected.background(), SystemColor::controlAccentColor.opacity(0.15));
}

TEST(ToolbarButton, a_disabled_one_shows_no_hover) {
    ToolbarButton disabled = button();
    disabled.isDisabled = true;
    disabled.isHovered = true;
    EXPECT_EQ(disabled.background(), SystemColor::clearColor);
}

TEST(ToolbarButton, a_press_may_be_told_again_and_again_and_shrinks_it_until_the_release) {
    ToolbarButton pressed = button();
    EXPECT_EQ(pressed.scale(), 1);
    pressed.pressEvents().onPress();
    pressed.pressEvents().onPress();
    EXPECT_EQ(pressed.scale(), 0.95);
    pressed.pressEvents().onRelease();
    EXPECT_EQ(pressed.scale(), 1);
}

TEST(ToolbarButton, a_newer_description_of_it_keeps_the_press) {
    ToolbarButton shown = button();
    shown.pressEvents().onPress();
    ToolbarButton newer = button();
    newer.label = "Undo";
    shown.follow(newer);
    EXPECT_EQ(shown.label, "Undo");
    EXPECT_TRUE(shown.isPressed);
}

} // namespace
} // namespace quillon::test
