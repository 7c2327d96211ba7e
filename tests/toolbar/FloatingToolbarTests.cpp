#include "toolbar/FloatingToolbarView.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillon::test {
namespace {

using ToolbarItem = FloatingToolbarView::ToolbarItem;

struct FloatingToolbar : testing::Test {
    DrawingTool tool = DrawingTool::pen;
    Color color = Color::cyan;
    CGFloat lineWidth = 4;
    std::vector<Color> quickColors = Color::quickSelectDefaults();
    bool isWhiteboardMode = false;
    std::vector<std::string> calls;
    FloatingToolbarView toolbar{Binding<DrawingTool>::to(tool),
                                Binding<Color>::to(color),
                                Binding<CGFloat>::to(lineWidth),
                                Binding<std::vector<Color>>::to(quickColors),
                                Binding<bool>::to(isWhiteboardMode),
                                [this] { calls.emplace_back("clear"); },
                                [this] { calls.emplace_back("undo"); },
                                [this] { calls.emplace_back("redo"); },
                                false,
                                false};

    template <typename Child = PaletteControl>
    Child child(std::size_t index) {
        return std::get<Child>(toolbar.row().children.at(index));
    }
    PaletteControl toolControl() { return child(0); }
    PaletteControl colorControl() { return child(2); }
    PaletteControl widthControl() { return child(4); }
    PaletteControl whiteboardControl() { return child(6); }
    PaletteControl undoControl() { return child<PaletteGroup>(8).controls.at(0); }
    PaletteControl redoControl() { return child<PaletteGroup>(8).controls.at(1); }
    PaletteControl clearControl() { return child(10); }
    ToolMenu toolMenu() { return std::get<ToolMenu>(*toolControl().menu); }
    ColorMenu colorMenu() { return std::get<ColorMenu>(*colorControl().menu); }
    LineWidthMenu widthMenu() { return std::get<LineWidthMenu>(*widthControl().menu); }
};

TEST_F(FloatingToolbar, the_row_has_eleven_children_with_dividers_between_the_controls) {
    const auto children = toolbar.row().children;
    ASSERT_EQ(children.size(), 11U);
    for (std::size_t index = 1; index < 11; index += 2) {
        EXPECT_EQ(std::get<PaletteDivider>(children[index]).height, 24) << index;
    }
    EXPECT_EQ(child<PaletteGroup>(8).spacing, 0);
    EXPECT_EQ(child<PaletteGroup>(8).controls.size(), 2U);
}

TEST_F(FloatingToolbar, the_tool_button_shows_the_current_tool_and_never_looks_selected) {
    tool = DrawingTool::arrow;
    EXPECT_EQ(toolControl().button.icon, systemImage(DrawingTool::arrow));
    EXPECT_EQ(toolControl().button.label, displayName(DrawingTool::arrow));
    EXPECT_FALSE(toolControl().button.isSelected);
}

TEST_F(FloatingToolbar, the_tool_menu_lists_every_tool_and_checks_the_current_one) {
    tool = DrawingTool::text;
    const auto entries = toolMenu().entries;
    ASSERT_EQ(entries.size(), 8U);
    EXPECT_EQ(entries[0].label, displayName(DrawingTool::pen));
    EXPECT_EQ(entries[7].icon, systemImage(DrawingTool::arrow));
    for (std::size_t index = 0; index < entries.size(); ++index) {
        EXPECT_EQ(entries[index].hasCheckmark, index == 3) << index;
    }
    entries[2].action();
    EXPECT_EQ(tool, DrawingTool::eraser);
}

TEST_F(FloatingToolbar, a_swatch_of_either_section_sets_the_colour) {
    const auto sections = colorMenu().sections;
    ASSERT_EQ(sections.size(), 2U);
    EXPECT_EQ(sections[0].title, "Quick Colors");
    EXPECT_EQ(sections[1].title, "More Colors");
    ASSERT_EQ(sections[0].swatches.size(), 5U);
    ASSERT_EQ(sections[1].swatches.size(), 14U);
    sections[0].swatches[1].action();
    EXPECT_EQ(color, quickColors[1]);
    sections[1].swatches[13].action();
    EXPECT_EQ(color, Color::black);
    EXPECT_EQ(sections[1].swatches[0].face.size, 24);
}

TEST_F(FloatingToolbar, without_quick_colours_their_section_has_a_title_alone) {
    quickColors.clear();
    EXPECT_EQ(colorMenu().sections[0].title, "Quick Colors");
    EXPECT_TRUE(colorMenu().sections[0].swatches.empty());
}

TEST_F(FloatingToolbar, two_equal_quick_colours_are_both_marked) {
    quickColors = {Color::red, Color::green, Color::red};
    color = Color::red;
    const auto swatches = colorMenu().sections[0].swatches;
    EXPECT_TRUE(swatches[0].face.isSelected);
    EXPECT_FALSE(swatches[1].face.isSelected);
    EXPECT_TRUE(swatches[2].face.isSelected);
}

TEST_F(FloatingToolbar, a_colour_of_another_opacity_marks_no_swatch) {
    color = Color::red.opacity(0.5);
    for (const auto& section : colorMenu().sections) {
        for (const auto& swatch : section.swatches) {
            EXPECT_FALSE(swatch.face.isSelected);
        }
    }
}

TEST_F(FloatingToolbar, a_custom_colour_opens_the_popover) {
    EXPECT_EQ(colorMenu().customLabel, "Custom Color...");
    EXPECT_EQ(colorMenu().customIcon, "eyedropper");
    colorMenu().customAction();
    EXPECT_TRUE(toolbar.showColorPicker());
}

TEST_F(FloatingToolbar, the_colour_button_opens_the_popover_and_does_not_close_it) {
    colorControl().button.action();
    colorControl().button.action();
    EXPECT_TRUE(toolbar.showColorPicker());
    toolbar.setShowColorPicker(false);
    EXPECT_FALSE(toolbar.showColorPicker());
}

TEST_F(FloatingToolbar, the_colour_button_does_not_show_the_colour) {
    color = Color::red;
    EXPECT_EQ(colorControl().button.icon, "paintpalette.fill");
    EXPECT_EQ(colorControl().button.label, "Color");
    EXPECT_EQ(colorControl().button.foregroundColor(), SystemColor::labelColor);
}

TEST_F(FloatingToolbar, the_flags_of_the_two_other_menus_are_toggled_and_mean_nothing) {
    toolControl().button.action();
    widthControl().button.action();
    EXPECT_TRUE(toolbar.showToolOptions());
    EXPECT_TRUE(toolbar.showLineWidthSlider());
    toolControl().button.action();
    EXPECT_FALSE(toolbar.showToolOptions());
}

TEST_F(FloatingToolbar, a_width_of_5_9_shows_as_5_in_caption_and_heading) {
    lineWidth = 5.9;
    EXPECT_EQ(widthControl().button.label, "5pt");
    EXPECT_EQ(widthMenu().heading, "Line Width: 5pt");
}

TEST(FloatingToolbarDeath, a_width_that_is_not_finite_ends_the_program) {
    DrawingTool tool = DrawingTool::pen;
    Color color = Color::red;
    CGFloat lineWidth = std::numeric_limits<double>::infinity();
    std::vector<Color> quickColors;
    bool isWhiteboardMode = false;
    FloatingToolbarView toolbar(Binding<DrawingTool>::to(tool), Binding<Color>::to(color),
                                Binding<CGFloat>::to(lineWidth),
                                Binding<std::vector<Color>>::to(quickColors),
                                Binding<bool>::to(isWhiteboardMode), {}, {}, {}, false, false);
    EXPECT_DEATH(toolbar.row(), "no integer part");
}

TEST_F(FloatingToolbar, the_slider_and_the_presets_set_the_width) {
    const auto menu = widthMenu();
    EXPECT_EQ(menu.slider.minimum, 1);
    EXPECT_EQ(menu.slider.maximum, 30);
    EXPECT_EQ(menu.slider.step, 1);
    EXPECT_EQ(menu.slider.accessibilityLabel, "Line Width");
    EXPECT_EQ(menu.slider.width, 150);
    EXPECT_EQ(menu.slider.minimumIcon, "lineweight");
    EXPECT_EQ(menu.slider.maximumIcon, "lineweight");
    menu.slider.value.set(17);
    EXPECT_EQ(lineWidth, 17);

    std::vector<CGFloat> heights;
    for (const auto& preset : menu.presets) {
        heights.push_back(preset.height);
        preset.action();
        EXPECT_EQ(lineWidth, preset.height);
    }
    EXPECT_EQ(heights, (std::vector<CGFloat>{2, 4, 6, 8, 12, 20}));
}

TEST_F(FloatingToolbar, the_whiteboard_button_is_filled_and_selected_while_it_is_on) {
    EXPECT_EQ(whiteboardControl().button.icon, "square");
    EXPECT_FALSE(whiteboardControl().button.isSelected);
    whiteboardControl().button.action();
    EXPECT_TRUE(isWhiteboardMode);
    EXPECT_EQ(whiteboardControl().button.icon, "square.fill");
    EXPECT_EQ(whiteboardControl().button.foregroundColor(), SystemColor::controlAccentColor);
    whiteboardControl().onHover(true);
    EXPECT_EQ(whiteboardControl().button.background(),
              SystemColor::controlAccentColor.opacity(0.15));
}

TEST_F(FloatingToolbar, undo_without_history_is_dim_and_dead_and_shows_no_hover) {
    undoControl().onHover(true);
    EXPECT_TRUE(undoControl().isDisabled);
    EXPECT_TRUE(undoControl().button.isDisabled);
    EXPECT_EQ(undoControl().button.foregroundColor(),
              SystemColor::secondaryLabelColor.opacity(0.5));
    EXPECT_EQ(undoControl().button.background(), SystemColor::clearColor);
    EXPECT_EQ(undoControl().keyEquivalent, (KeyEquivalent{'z', false}));
}

TEST_F(FloatingToolbar, redo_without_history_is_dim_and_dead_and_shows_no_hover) {
    redoControl().onHover(true);
    EXPECT_TRUE(redoControl().isDisabled);
    EXPECT_TRUE(redoControl().button.isDisabled);
    EXPECT_EQ(redoControl().button.background(), SystemColor::clearColor);
    EXPECT_EQ(redoControl().keyEquivalent, (KeyEquivalent{'z', true}));
}

TEST_F(FloatingToolbar, undo_and_redo_come_alive_with_their_history) {
    int updates = 0;
    const auto subscription = toolbar.objectWillChange.sink([&] { ++updates; });
    toolbar.setHistory(true, false);
    EXPECT_FALSE(undoControl().isDisabled);
    EXPECT_TRUE(redoControl().isDisabled);
    toolbar.setHistory(false, true);
    EXPECT_TRUE(undoControl().isDisabled);
    EXPECT_FALSE(redoControl().isDisabled);
    EXPECT_EQ(updates, 2);
    toolbar.setHistory(false, true);
    EXPECT_EQ(updates, 2);
}

TEST_F(FloatingToolbar, undo_redo_and_clear_are_callbacks) {
    toolbar.setHistory(true, true);
    undoControl().button.action();
    redoControl().button.action();
    clearControl().button.action();
    EXPECT_EQ(calls, (std::vector<std::string>{"undo", "redo", "clear"}));
}

TEST_F(FloatingToolbar, clear_is_destructive_and_never_disabled) {
    EXPECT_TRUE(clearControl().button.isDestructive);
    EXPECT_FALSE(clearControl().isDisabled);
    EXPECT_EQ(clearControl().button.icon, "trash");
}

TEST_F(FloatingToolbar, one_control_at_most_is_hovered_and_leaving_any_clears_it) {
    clearControl().onHover(true);
    EXPECT_TRUE(clearControl().button.isHovered);
    widthControl().onHover(true);
    EXPECT_FALSE(clearControl().button.isHovered);
    EXPECT_TRUE(widthControl().button.isHovered);
    clearControl().onHover(false);
    EXPECT_FALSE(widthControl().button.isHovered);
    EXPECT_EQ(toolbar.hoverItem(), std::nullopt);
}

TEST_F(FloatingToolbar, a_tool_picked_under_the_pointer_loses_the_hover_until_it_comes_again) {
    toolControl().onHover(true);
    EXPECT_TRUE(toolControl().button.isHovered);
    toolMenu().entries[5].action();
    EXPECT_EQ(toolbar.hoverItem(), ToolbarItem::tool(DrawingTool::pen));
    EXPECT_FALSE(toolControl().button.isHovered);
    toolControl().onHover(true);
    EXPECT_TRUE(toolControl().button.isHovered);
}

TEST_F(FloatingToolbar, the_popovers_content_edits_the_shared_colour_and_the_quick_colours) {
    const auto picker = toolbar.makeColorPicker();
    picker->quickColorCells()[0].action();
    EXPECT_EQ(color, quickColors[0]);
    picker->quickColorCells()[0].contextMenu[0].action();
    EXPECT_EQ(quickColors.size(), 4U);
}

TEST(ToolbarItem, items_of_the_same_case_and_payload_are_equal_and_hash_alike) {
    const std::hash<ToolbarItem> hash;
    EXPECT_EQ(ToolbarItem::action("undo"), ToolbarItem::action("undo"));
    EXPECT_NE(ToolbarItem::action("undo"), ToolbarItem::action("redo"));
    EXPECT_NE(ToolbarItem::action("pen"), ToolbarItem::tool(DrawingTool::pen));
    EXPECT_EQ(hash(ToolbarItem::action("undo")), hash(ToolbarItem::action("undo")));
    EXPECT_NE(hash(ToolbarItem::action("undo")), hash(ToolbarItem::action("redo")));
    EXPECT_NE(hash(ToolbarItem::tool(DrawingTool::pen)),
              hash(ToolbarItem::tool(DrawingTool::text)));
}

} // namespace
} // namespace quillon::test
