#include "settings/SettingsTest.h"

namespace quillon::test {

using GeneralSettings = SettingsTest;
using Outline = std::vector<std::string>;

TEST_F(GeneralSettings, it_shows_two_sections) {
    EXPECT_EQ(form().navigationTitle, "General Settings");
    EXPECT_EQ(outline(form()), (Outline{"[App Behavior]", "Launch at Login", "[Toolbar]",
                                        "Show Floating Toolbar", "Default Tool"}));
    EXPECT_FALSE(form().alert);
}

TEST_F(GeneralSettings, both_switches_are_of_the_default_style_and_write_their_settings) {
    const auto launch = row<ToggleRow>(0, 0);
    const auto toolbar = row<ToggleRow>(1, 0);
    EXPECT_EQ(launch.style, ToggleStyle::automatic);
    EXPECT_EQ(toolbar.style, ToggleStyle::automatic);
    EXPECT_FALSE(launch.isOn.get());
    EXPECT_TRUE(toolbar.isOn.get());
    launch.isOn.set(true);
    toolbar.isOn.set(false);
    EXPECT_TRUE(settings().launchAtLogin);
    EXPECT_FALSE(settings().showFloatingToolbar);
}

TEST_F(GeneralSettings, the_default_tool_is_a_menu_of_all_tools) {
    const auto tools = row<PickerRow>(1, 1);
    EXPECT_EQ(tools.style, PickerStyle::menu);
    ASSERT_EQ(tools.entries.size(), allCases<DrawingTool>().size());
    for (const DrawingTool tool : allCases<DrawingTool>()) {
        EXPECT_EQ(tools.entries.at(static_cast<std::size_t>(tool)), displayName(tool));
    }
}

TEST_F(GeneralSettings, the_default_tool_is_the_tool_of_the_palette_and_the_reverse) {
    const auto tools = row<PickerRow>(1, 1);
    settings().selectedTool = DrawingTool::line;
    EXPECT_EQ(tools.entries.at(tools.selection()), displayName(DrawingTool::line));
    tools.select(static_cast<std::size_t>(DrawingTool::eraser));
    EXPECT_EQ(settings().selectedTool.get(), DrawingTool::eraser);
}

} // namespace quillon::test
