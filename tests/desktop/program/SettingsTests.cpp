#include "desktop/program/SettingsTest.h"

namespace quillon::test {
namespace {

class SettingsOnScreen : public SettingsTest {};

/// Too low for the window.
class SettingsOnALowScreen : public SettingsTest {
protected:
    SettingsOnALowScreen()
        : SettingsTest({.width = 1000, .height = 480}) {}
};

TEST_F(SettingsOnScreen, a_second_start_opens_it_and_a_third_brings_it_to_the_front) {
    startAndOpen();
    EXPECT_EQ(width, 600);
    EXPECT_GT(height, 500);
    below.activate();
    ASSERT_TRUE(eventually([this] { return below.hasKeyboard(); }));
    open();
    EXPECT_EQ(titled(kTitle).size(), 1U);
    EXPECT_EQ(program->process().standardOutput(),
              "AppDelegate: openSettings called\n"
              "AppDelegate: creating new settings window\n"
              "AppDelegate: showing settings window\n"
              "AppDelegate: openSettings called\n"
              "AppDelegate: settings window exists, bringing to front\n");
}

TEST_F(SettingsOnScreen, the_menu_of_the_tray_opens_it) {
    desktop.startTray();
    start();
    const auto isPaper = [](Rgb seen) { return seen.red > 200; };
    // The item stands at the panel's left.
    ASSERT_TRUE(eventually([&] {
        input.click({12, 15});
        return screen.waitForPixel({60, 60}, isPaper, std::chrono::milliseconds(300));
    }));
    input.chord({"Control_L", "comma"});
    awaitWindow();
}

TEST_F(SettingsOnScreen, it_cannot_be_resized_and_stays_above_other_windows) {
    startAndOpen();
    auto& connection = desktop.connection();
    const auto hints = connection.property(window, "WM_NORMAL_HINTS");
    ASSERT_GE(hints.size(), 9U);
    EXPECT_EQ(hints[5], hints[7]);
    EXPECT_EQ(hints[6], hints[8]);
    const auto states = connection.property(window, "_NET_WM_STATE");
    EXPECT_NE(std::find(states.begin(), states.end(), connection.atom("_NET_WM_STATE_ABOVE")),
              states.end());
    EXPECT_EQ(connection.text(window, "WM_CLASS").find("quillon-mark"), 0U);
}

TEST_F(SettingsOnALowScreen, the_title_and_the_tabs_stay_in_reach) {
    startAndOpen();
    ASSERT_TRUE(eventually([this] { return titled(kTitle).size() == 1; }));
    EXPECT_GE(at({0, 0}).y, height - 500);
    showTab(about);
    closeWindow();
}

TEST_F(SettingsOnScreen, a_closed_window_is_gone_and_a_fresh_one_opens_on_the_first_tab) {
    startAndOpen();
    showTab(about);
    closeWindow();
    EXPECT_NE(program->process().standardOutput().find("AppDelegate: settings window closed\n"),
              std::string::npos);
    open();
    stop();
}

TEST_F(SettingsOnScreen, every_tab_comes_up_by_a_click_and_the_program_lives_on) {
    startAndOpen();
    for (const Tab tab : {annotation, cursor, spotlight, shortcuts, about, general}) {
        showTab(tab);
    }
    stop();
}

TEST_F(SettingsOnScreen, the_arrow_keys_go_from_tab_to_tab) {
    startAndOpen();
    showTab(annotation);
    input.tap("Right");
    EXPECT_TRUE(screen.waitForPixel(tabGround(cursor), isSelected));
    input.tap("Left");
    EXPECT_TRUE(screen.waitForPixel(tabGround(annotation), isSelected));
}

TEST_F(SettingsOnScreen, a_switch_is_stored_as_it_is_turned) {
    startAndOpen();
    input.click(switchOf(0, 1));
    EXPECT_TRUE(isOn(switchOf(0, 1)));
    program->kill();
    EXPECT_TRUE(stored<bool>([](AppSettings& settings) { return settings.launchAtLogin.get(); }));
}

TEST_F(SettingsOnScreen, a_picker_is_worked_by_keys) {
    startAndOpen();
    const Pixel picker = row(2, 2, 516);
    const Pixel entry{picker.x, picker.y + 60};
    const Rgb page = screen.pixel(entry);
    input.click(picker);
    ASSERT_TRUE(screen.waitForPixel(entry, [&](Rgb seen) { return !(seen == page); }));
    input.tap("Down");
    input.tap("Return");
    ASSERT_TRUE(screen.waitForPixel(entry, [&](Rgb seen) { return seen == page; }));
    stop();
    EXPECT_EQ(
        stored<DrawingTool>([](AppSettings& settings) { return settings.selectedTool.get(); }),
        DrawingTool::highlighter);
}

TEST_F(SettingsOnScreen, a_slider_dragged_to_its_end_writes_the_maximum) {
    startAndOpen();
    showTab(annotation);
    input.drag({row(1, 1, 330), row(1, 1, 560)});
    // Beside the knob at the end: what has not been worked yet, the end of the program would cut
    // off.
    EXPECT_TRUE(screen.waitForPixel(row(1, 1, 470), isAccent));
    stop();
    EXPECT_EQ(stored<double>([](AppSettings& settings) { return settings.lineWidth.get(); }), 30);
}

TEST_F(SettingsOnScreen, the_colour_panel_changes_the_colour_as_it_is_worked) {
    startAndOpen();
    showTab(annotation);
    const Pixel swatch = row(0, 1, 548);
    input.click(swatch);
    ASSERT_TRUE(eventually([this] { return titled("Colors").size() == 1; }));
    const xcb_window_t panel = titled("Colors").front();
    ASSERT_TRUE(eventually([&] { return desktop.connection().focusedWindow() == panel; }));
    // The panel has no button to confirm: the text of a colour counts once it is complete.
    input.chord({"Alt_L", "h"});
    input.chord({"Control_L", "a"});
    input.chord({"Shift_L", "3"});
    input.type("ff0000");
    desktop.connection().askWindowManager("_NET_CLOSE_WINDOW", panel, {0, 2});
    EXPECT_TRUE(screen.waitForColor(swatch, kInk));
    stop();
    EXPECT_EQ(stored<Color>([](AppSettings& settings) { return settings.selectedColor.get(); }),
              Color(1, 0, 0));
}

TEST_F(SettingsOnScreen, the_whiteboard_comes_up_below_the_window_which_goes_on_working) {
    startAndOpen();
    showTab(annotation);
    const Pixel toggle = switchOf(3, 2);
    const auto isSheet = [](Rgb seen) { return seen.red > 225; };
    input.click(toggle);
    ASSERT_TRUE(screen.waitForPixel({20, 500}, isSheet));
    EXPECT_TRUE(isAnnotating());
    EXPECT_TRUE(isOn(toggle));
    input.click(toggle);
    EXPECT_TRUE(screen.waitForColor({20, 500}, kBackground));
    EXPECT_TRUE(isOff(toggle));
}

TEST_F(SettingsOnScreen, a_control_follows_its_setting_when_a_shortcut_changes_it) {
    startAndOpen();
    showTab(annotation);
    EXPECT_TRUE(isOff(switchOf(3, 2)));
    toggleWhiteboard();
    EXPECT_TRUE(isOn(switchOf(3, 2)));
}

TEST_F(SettingsOnScreen, annotation_switched_on_later_leaves_the_window_in_reach) {
    startAndOpen();
    toggleAnnotation();
    ASSERT_TRUE(isAnnotating());
    input.click(switchOf(0, 1));
    EXPECT_TRUE(isOn(switchOf(0, 1)));
}

TEST_F(SettingsOnScreen, text_can_be_typed_beside_the_window) {
    prepareTool(DrawingTool::text);
    startAndOpen();
    toggleAnnotation();
    ASSERT_TRUE(isAnnotating());
    writeText({60, 500}, "Hill");
    EXPECT_TRUE(showsText({60, 500}));
}

TEST_F(SettingsOnScreen, the_spotlight_dims_the_desktop_from_here) {
    startAndOpen();
    showTab(spotlight);
    input.click(switchOf(0, 1));
    EXPECT_TRUE(isOn(switchOf(0, 1)));
    EXPECT_TRUE(
        screen.waitForPixel({20, 500}, [](Rgb seen) { return seen.blue < kBackground.blue - 30; }));
    stop();
    EXPECT_TRUE(
        stored<bool>([](AppSettings& settings) { return settings.isSpotlightEnabled.get(); }));
}

TEST_F(SettingsOnScreen, reset_brings_everything_back_and_the_open_tab_shows_it) {
    prepare([](AppSettings& settings) {
        settings.launchAtLogin = true;
        settings.showFloatingToolbar = false;
        settings.lineWidth = 21.0;
    });
    startAndOpen();
    ASSERT_TRUE(isOn(switchOf(0, 1)));
    ASSERT_TRUE(isOff(switchOf(1, 2)));
    input.click(at({560, -16}));
    EXPECT_TRUE(isOff(switchOf(0, 1)));
    EXPECT_TRUE(isOn(switchOf(1, 2)));
    stop();
    EXPECT_EQ(stored<double>([](AppSettings& settings) { return settings.lineWidth.get(); }), 4);
}

TEST_F(SettingsOnScreen, reset_on_the_tab_of_the_spotlight_switches_it_off) {
    startAndOpen();
    showTab(spotlight);
    input.click(switchOf(0, 1));
    ASSERT_TRUE(isOn(switchOf(0, 1)));
    ASSERT_TRUE(
        screen.waitForPixel({20, 500}, [](Rgb seen) { return seen.blue < kBackground.blue - 30; }));
    input.click(at({560, -16}));
    EXPECT_TRUE(isOff(switchOf(0, 1)));
    EXPECT_TRUE(showsBackground({20, 500}));
}

TEST_F(SettingsOnScreen, its_menu_switches_annotation_on) {
    startAndOpen();
    input.click(at({38, -16}));
    // The menu hangs over the tabs.
    ASSERT_TRUE(screen.waitForPixel(at({60, 12}), [](Rgb seen) { return !isSelected(seen); }));
    input.tap("Down");
    input.tap("Return");
    EXPECT_TRUE(isAnnotating());
}

TEST_F(SettingsOnScreen, f10_opens_its_menu) {
    startAndOpen();
    input.tap("F10");
    ASSERT_TRUE(screen.waitForPixel(at({60, 12}), [](Rgb seen) { return !isSelected(seen); }));
    input.tap("Down");
    input.tap("Return");
    EXPECT_TRUE(isAnnotating());
}

TEST_F(SettingsOnScreen, the_end_of_the_program_with_the_window_open_is_a_clean_one) {
    startAndOpen();
    showTab(shortcuts);
    stop();
    EXPECT_EQ(program->process().standardError(), "");
}

/// The same where the overlay holds the pointer as a whole.
class SettingsWithoutCompositor : public SettingsTest {
protected:
    SettingsWithoutCompositor()
        : SettingsTest({.width = 1000, .height = 800, .hasCompositor = false}) {}
};

TEST_F(SettingsWithoutCompositor, annotation_switched_on_later_leaves_the_window_in_reach) {
    startAndOpen();
    toggleAnnotation();
    ASSERT_TRUE(eventually([this] { return isPointerHeld(); }));
    input.click(switchOf(0, 1));
    EXPECT_TRUE(isOn(switchOf(0, 1)));
}

TEST_F(SettingsWithoutCompositor, text_can_be_typed_beside_the_window) {
    prepareTool(DrawingTool::text);
    startAndOpen();
    toggleAnnotation();
    ASSERT_TRUE(eventually([this] { return isPointerHeld(); }));
    writeText({60, 500}, "Hill");
    EXPECT_TRUE(showsText({60, 500}));
}

} // namespace
} // namespace quillon::test
