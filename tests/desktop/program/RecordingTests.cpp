#include "desktop/program/SettingsTest.h"

namespace quillon::test {
namespace {

constexpr const char* kAlert = "Shortcut Not Set";

/// The tab "Shortcuts" with the recorder of an action in reach.
class Recording : public SettingsTest {
protected:
    void openShortcuts() {
        startAndOpen();
        showTab(shortcuts);
    }
    Pixel recorder(HotkeyAction action) const { return row(static_cast<int>(action), 1, 420); }
    Pixel clearButton(HotkeyAction action) const { return row(static_cast<int>(action), 1, 527); }

    bool isRecording(HotkeyAction action) {
        const Pixel place = recorder(action);
        return screen.waitForPixel({place.x - 10, place.y - 10}, isAccent);
    }
    bool isIdle(HotkeyAction action) {
        const Pixel place = recorder(action);
        return screen.waitForPixel({place.x - 10, place.y - 10},
                                   [](Rgb seen) { return !isAccent(seen); });
    }
    void begin(HotkeyAction action) {
        input.click(recorder(action));
        ASSERT_TRUE(isRecording(action));
        // The keyboard is held when another program can no longer take it.
        ASSERT_TRUE(eventually([this] { return !canTakeKeyboard(); }));
    }

    /// Whether the keyboard is free for another program to hold.
    bool canTakeKeyboard() {
        auto* connection = desktop.connection().get();
        const XOwned<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(
            connection,
            xcb_grab_keyboard(connection, 0, desktop.connection().root(), XCB_CURRENT_TIME,
                              XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
            nullptr));
        const bool taken = reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
        if (taken) {
            xcb_ungrab_keyboard(connection, XCB_CURRENT_TIME);
            desktop.connection().synchronise();
        }
        return taken;
    }
    /// Whether command and shift with that key are free for another program.
    bool canGrab(std::string_view key) {
        auto* connection = desktop.connection().get();
        const auto request = xcb_grab_key_checked(
            connection, 0, desktop.connection().root(), XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT,
            input.keyCode(key), XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        const XOwned<xcb_generic_error_t> error(xcb_request_check(connection, request));
        return !error;
    }
    bool isKeyboardFree() {
        return eventually([this] { return canTakeKeyboard(); });
    }
    std::optional<HotkeyConfig> storedBinding(HotkeyAction action) {
        return stored<std::optional<HotkeyConfig>>(
            [action](AppSettings& settings) -> std::optional<HotkeyConfig> {
                const HotkeyMap& hotkeys = settings.hotkeys;
                const auto found = hotkeys.find(action);
                return found == hotkeys.end() ? std::nullopt : std::optional(found->second);
            });
    }
    bool showsAlert() {
        return eventually([this] { return titled(kAlert).size() == 1; });
    }
    void dismissAlert() {
        const auto alert = titled(kAlert);
        ASSERT_EQ(alert.size(), 1U);
        ASSERT_TRUE(
            eventually([&] { return desktop.connection().focusedWindow() == alert.front(); }));
        input.tap("Return");
        ASSERT_TRUE(eventually([this] { return titled(kAlert).empty(); }));
        ASSERT_TRUE(eventually([this] { return desktop.connection().focusedWindow() == window; }));
    }
};

TEST_F(Recording, a_recorded_shortcut_is_stored_and_works_at_once) {
    openShortcuts();
    begin(HotkeyAction::toggleAnnotation);
    input.chord({"Control_L", "Shift_L", "k"});
    ASSERT_TRUE(isIdle(HotkeyAction::toggleAnnotation));
    EXPECT_TRUE(isKeyboardFree());
    ASSERT_TRUE(eventually([this] { return areShortcutsLive(); }));
    input.chord({"Control_L", "Shift_L", "k"});
    EXPECT_TRUE(isAnnotating());
    stop();
    EXPECT_EQ(storedBinding(HotkeyAction::toggleAnnotation),
              (HotkeyConfig{40, 0x1200, HotkeyAction::toggleAnnotation}));
}

TEST_F(Recording, shortcuts_are_silent_meanwhile_and_back_after_escape) {
    openShortcuts();
    begin(HotkeyAction::toggleZoom);
    EXPECT_FALSE(areShortcutsLive());
    input.tap("Escape");
    EXPECT_TRUE(isIdle(HotkeyAction::toggleZoom));
    EXPECT_TRUE(isKeyboardFree());
    EXPECT_TRUE(eventually([this] { return areShortcutsLive(); }));
    toggleAnnotation();
    EXPECT_TRUE(isAnnotating());
}

TEST_F(Recording, the_shortcut_that_the_action_has_is_recorded_and_not_carried_out) {
    openShortcuts();
    begin(HotkeyAction::toggleAnnotation);
    toggleAnnotation();
    EXPECT_TRUE(isIdle(HotkeyAction::toggleAnnotation));
    EXPECT_TRUE(eventually([this] { return areShortcutsLive(); }));
    input.moveTo({20, 500});
    EXPECT_FALSE(takesPointer());
}

TEST_F(Recording, a_combination_that_the_desktop_took_for_itself_is_recorded) {
    auto& connection = desktop.connection();
    xcb_grab_key(connection.get(), 0, connection.root(), XCB_MOD_MASK_4, input.keyCode("e"),
                 XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    connection.synchronise();
    openShortcuts();
    begin(HotkeyAction::undo);
    input.chord({"Super_L", "e"});
    EXPECT_TRUE(isIdle(HotkeyAction::undo));
    stop();
    EXPECT_EQ(storedBinding(HotkeyAction::undo), (HotkeyConfig{14, 0x100, HotkeyAction::undo}));
}

TEST_F(Recording, tab_and_keys_of_the_windows_own_menu_are_recorded_too) {
    openShortcuts();
    begin(HotkeyAction::undo);
    input.chord({"Control_L", "Tab"});
    ASSERT_TRUE(isIdle(HotkeyAction::undo));
    begin(HotkeyAction::redo);
    input.chord({"Alt_L", "a"});
    ASSERT_TRUE(isIdle(HotkeyAction::redo));
    stop();
    EXPECT_EQ(storedBinding(HotkeyAction::undo), (HotkeyConfig{48, 0x1000, HotkeyAction::undo}));
    EXPECT_EQ(storedBinding(HotkeyAction::redo), (HotkeyConfig{0, 0x800, HotkeyAction::redo}));
}

TEST_F(Recording, a_shortcut_of_another_action_is_refused_with_an_alert) {
    openShortcuts();
    begin(HotkeyAction::undo);
    toggleWhiteboard();
    ASSERT_TRUE(showsAlert());
    EXPECT_TRUE(isIdle(HotkeyAction::undo));
    EXPECT_TRUE(isKeyboardFree());
    EXPECT_TRUE(eventually([this] { return areShortcutsLive(); }));
    dismissAlert();
    stop();
    EXPECT_FALSE(storedBinding(HotkeyAction::undo));
}

TEST_F(Recording, without_a_modifier_an_alert_says_so_and_the_recording_goes_on) {
    openShortcuts();
    begin(HotkeyAction::undo);
    input.tap("k");
    ASSERT_TRUE(showsAlert());
    EXPECT_TRUE(isKeyboardFree());
    EXPECT_FALSE(areShortcutsLive());
    dismissAlert();
    EXPECT_TRUE(isRecording(HotkeyAction::undo));
    ASSERT_TRUE(eventually([this] { return !canTakeKeyboard(); }));
    input.chord({"Control_L", "k"});
    EXPECT_TRUE(isIdle(HotkeyAction::undo));
    stop();
    EXPECT_EQ(storedBinding(HotkeyAction::undo), (HotkeyConfig{40, 0x1000, HotkeyAction::undo}));
}

TEST_F(Recording, no_other_recorder_begins_while_one_records) {
    openShortcuts();
    begin(HotkeyAction::undo);
    input.click(recorder(HotkeyAction::redo));
    // The window manager holds clicks up and keys not, so Escape waits until a later motion shows.
    const Pixel resetButton = at({586, -16});
    const Rgb untouched = screen.pixel(resetButton);
    input.moveTo(resetButton);
    ASSERT_TRUE(screen.waitForPixel(resetButton, [&](Rgb seen) { return !(seen == untouched); }));
    input.tap("Escape");
    EXPECT_TRUE(isIdle(HotkeyAction::undo));
    EXPECT_TRUE(isIdle(HotkeyAction::redo));
}

TEST_F(Recording, another_window_that_gets_the_keyboard_has_it) {
    openShortcuts();
    begin(HotkeyAction::undo);
    below.activate();
    ASSERT_TRUE(eventually([this] { return below.hasKeyboard(); }));
    EXPECT_TRUE(isKeyboardFree());
    const int before = below.keyCount();
    input.tap("a");
    EXPECT_TRUE(eventually([&] { return below.keyCount() == before + 1; }));
}

TEST_F(Recording, a_window_closed_in_the_middle_leaves_shortcuts_and_keyboard_in_order) {
    openShortcuts();
    begin(HotkeyAction::undo);
    closeWindow();
    EXPECT_TRUE(isKeyboardFree());
    EXPECT_TRUE(eventually([this] { return areShortcutsLive(); }));
    toggleAnnotation();
    EXPECT_TRUE(isAnnotating());
}

TEST_F(Recording, another_tab_in_the_middle_leaves_shortcuts_and_keyboard_in_order) {
    openShortcuts();
    begin(HotkeyAction::undo);
    showTab(about);
    EXPECT_TRUE(isKeyboardFree());
    EXPECT_TRUE(eventually([this] { return areShortcutsLive(); }));
}

TEST_F(Recording, a_kill_in_the_middle_frees_the_keyboard) {
    openShortcuts();
    begin(HotkeyAction::undo);
    program->kill();
    EXPECT_TRUE(isKeyboardFree());
}

TEST_F(Recording, clear_unbinds_at_once) {
    openShortcuts();
    input.click(clearButton(HotkeyAction::toggleAnnotation));
    ASSERT_TRUE(eventually([this] { return canGrab("s"); }));
    EXPECT_TRUE(eventually([this] { return areShortcutsLive(); }));
    stop();
    EXPECT_FALSE(storedBinding(HotkeyAction::toggleAnnotation));
}

} // namespace
} // namespace quillon::test
