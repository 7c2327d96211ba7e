#include "settings/SettingsTest.h"

#include <algorithm>

namespace quillon::test {

using SettingsViewTest = SettingsTest;

TEST(SettingsTab, the_tabs_and_their_symbols) {
    const std::vector<std::pair<std::string, std::string>> expected{
        {"General", "gear"},         {"Annotation", "pencil.and.outline"},
        {"Cursor Halo", "sparkles"}, {"Spotlight & Zoom", "magnifyingglass"},
        {"Shortcuts", "keyboard"},   {"About", "info.circle"},
    };
    std::vector<std::pair<std::string, std::string>> tabs;
    for (const SettingsTab tab : allCases<SettingsTab>()) {
        tabs.emplace_back(id(tab), icon(tab));
    }
    EXPECT_EQ(tabs, expected);
}

TEST(SettingsTab, an_unknown_string_is_no_tab) {
    EXPECT_EQ(fromRawValue<SettingsTab>("Shortcuts"), SettingsTab::hotkeys);
    EXPECT_FALSE(fromRawValue<SettingsTab>("hotkeys"));
    EXPECT_FALSE(fromRawValue<SettingsTab>(""));
}

TEST_F(SettingsViewTest, it_opens_on_general) {
    EXPECT_EQ(view.selectedTab(), SettingsTab::general);
    EXPECT_EQ(form().navigationTitle, "General Settings");
}

TEST_F(SettingsViewTest, five_dividers_stand_in_the_strip_and_none_follows_the_last_tab) {
    const auto items = view.tabStrip().items;
    ASSERT_EQ(items.size(), 11U);
    for (std::size_t index = 0; index < items.size(); ++index) {
        EXPECT_EQ(std::holds_alternative<TabDivider>(items[index]), index % 2 == 1);
    }
    EXPECT_EQ(TabDivider::height, 20);
}

TEST_F(SettingsViewTest, the_strip_marks_the_selected_tab_alone) {
    for (const SettingsTab selected : allCases<SettingsTab>()) {
        view.select(selected);
        for (const auto& item : view.tabStrip().items) {
            if (const auto* button = std::get_if<TabButton>(&item)) {
                EXPECT_EQ(button->isSelected, button->tab == selected);
                EXPECT_EQ(button->label, rawValue(button->tab));
                EXPECT_EQ(button->symbol, icon(button->tab));
            }
        }
    }
}

TEST(TabButton, the_symbol_stands_above_the_smaller_label_with_room_around_both) {
    EXPECT_EQ(TabButton::spacing, 4);
    EXPECT_EQ(TabButton::symbolFontSize, 16);
    EXPECT_EQ(TabButton::textFontSize, 11);
    EXPECT_EQ(TabButton::verticalPadding, 10);
    EXPECT_EQ(TabButton::selectedGroundOpacity, 0.15);
}

TEST_F(SettingsViewTest, each_tab_shows_its_own_page) {
    const auto title = [this](SettingsTab tab) {
        view.select(tab);
        return std::visit([](const auto& page) { return page.navigationTitle; }, view.content());
    };
    EXPECT_EQ(title(SettingsTab::general), "General Settings");
    EXPECT_EQ(title(SettingsTab::annotation), "Annotation Settings");
    EXPECT_EQ(title(SettingsTab::cursor), "Cursor Halo Settings");
    EXPECT_EQ(title(SettingsTab::spotlight), "Spotlight & Zoom Settings");
    EXPECT_EQ(title(SettingsTab::hotkeys), "Keyboard Shortcuts");
    EXPECT_EQ(title(SettingsTab::about), "About");
}

TEST_F(SettingsViewTest, the_content_is_never_narrower_than_500_or_lower_than_400) {
    EXPECT_EQ(SettingsView::minimumContentSize, (CGSize{500, 400}));
    EXPECT_EQ(SettingsView::contentPadding, 20);
}

TEST_F(SettingsViewTest, the_tool_bar_has_one_button_that_resets_everything_at_once) {
    const auto toolbar = view.toolbar();
    ASSERT_EQ(toolbar.size(), 1U);
    EXPECT_EQ(toolbar[0].label, "Reset");
    EXPECT_EQ(toolbar[0].symbol, "arrow.counterclockwise");
    EXPECT_EQ(toolbar[0].toolTip, "Reset all settings to defaults");

    settings().lineWidth = 12.0;
    settings().hotkeys = HotkeyMap{};
    toolbar[0].action();
    EXPECT_EQ(settings().lineWidth.get(), 4);
    EXPECT_EQ(settings().hotkeys.get(), HotkeyConfig::defaults());
}

TEST_F(SettingsViewTest, after_a_reset_the_controls_of_the_open_tab_show_the_defaults) {
    view.select(SettingsTab::annotation);
    settings().lineWidth = 12.0;
    settings().isWhiteboardMode = true;
    const auto width = row<SliderRow>(0, 1);
    const auto whiteboard = row<ToggleRow>(1, 0);
    int changes = 0;
    const auto observed = view.objectWillChange.sink([&] { ++changes; });
    view.toolbar().front().action();
    EXPECT_EQ(width.text(), "4pt");
    EXPECT_EQ(width.stop(), 3);
    EXPECT_FALSE(whiteboard.isOn.get());
    EXPECT_GT(changes, 0);
}

TEST_F(SettingsViewTest, a_change_of_any_setting_by_anybody_is_announced) {
    int changes = 0;
    const auto observed = view.objectWillChange.sink([&] { ++changes; });
    settings().selectedTool = DrawingTool::arrow;
    EXPECT_EQ(changes, 1);
    view.select(SettingsTab::about);
    EXPECT_EQ(changes, 2);
}

TEST_F(SettingsViewTest, the_tab_on_show_selected_again_changes_nothing) {
    view.select(SettingsTab::hotkeys);
    row<ShortcutRow>(0, 0).state().recorder.onBegin();
    int changes = 0;
    const auto observed = view.objectWillChange.sink([&] { ++changes; });
    view.select(SettingsTab::hotkeys);
    EXPECT_EQ(changes, 0);
    EXPECT_TRUE(row<ShortcutRow>(0, 0).state().recorder.isRecording);
}

TEST_F(SettingsViewTest, nothing_is_written_by_looking_at_the_tabs) {
    host.userDefaults.writes.clear();
    for (const SettingsTab tab : allCases<SettingsTab>()) {
        view.select(tab);
        view.content();
    }
    EXPECT_TRUE(host.userDefaults.writes.empty());
}

} // namespace quillon::test
