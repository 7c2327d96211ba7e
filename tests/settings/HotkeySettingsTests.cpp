#include "settings/SettingsTest.h"

namespace quillon::test {

namespace {

constexpr const char* kConflict = "That shortcut is already assigned to another action.";
constexpr const char* kModifierMissing =
    "Shortcuts must include at least one modifier key (⌘, ⇧, ⌥, or ⌃).";

/// The tab as it stands in a program: shortcuts are registered, and a change of the bindings
/// registers them anew one turn later.
struct HotkeySettings : SettingsTest {
    HotkeySettings() {
        hotkeyManager.registerHotkeys(settings().hotkeys);
        view.select(SettingsTab::hotkeys);
    }

    ShortcutRow row(HotkeyAction action) {
        return SettingsTest::row<ShortcutRow>(0, static_cast<std::size_t>(action));
    }
    ShortcutRowState state(HotkeyAction action) { return row(action).state(); }
    void begin(HotkeyAction action) { state(action).recorder.onBegin(); }
    void capture(HotkeyAction action, std::uint32_t keyCode, std::uint32_t modifiers) {
        state(action).recorder.onCapture(keyCode, modifiers);
        host.mainQueue.run();
    }
    std::optional<HotkeyConfig> binding(HotkeyAction action) {
        const HotkeyMap& hotkeys = settings().hotkeys;
        const auto found = hotkeys.find(action);
        return found == hotkeys.end() ? std::nullopt : std::optional(found->second);
    }
    std::size_t liveCount() const { return host.hotKeys.registered.size(); }
    std::optional<std::string> alertMessage() {
        const auto alert = form().alert();
        return alert ? std::optional(alert->message) : std::nullopt;
    }

    HotkeyManager& hotkeyManager = HotkeyManager::shared();
    Cancellable observer = settings().hotkeys.sinkDroppingFirst([this](const HotkeyMap& hotkeys) {
        host.mainQueue.async([this, hotkeys] { hotkeyManager.registerHotkeys(hotkeys); });
    });
};

using Clear = ShortcutRowState::Clear;

} // namespace

TEST_F(HotkeySettings, it_shows_one_row_for_each_action) {
    EXPECT_EQ(form().navigationTitle, "Keyboard Shortcuts");
    EXPECT_EQ(outline(form()), (std::vector<std::string>{"[Global Shortcuts]", "Toggle Annotation",
                                                         "Toggle Whiteboard", "Toggle Cursor Halo",
                                                         "Toggle Spotlight", "Toggle Zoom",
                                                         "Clear Annotations", "Undo", "Redo"}));
    EXPECT_EQ(ShortcutRow::recorderSize, (CGSize{132, 28}));
}

TEST_F(HotkeySettings, an_action_with_a_binding_shows_it_and_can_be_cleared) {
    const auto row = state(HotkeyAction::toggleAnnotation);
    EXPECT_EQ(row.binding, "⌘⇧S");
    EXPECT_EQ(row.recorder.title, "Change");
    EXPECT_FALSE(row.recorder.isRecording);
    EXPECT_TRUE(row.allowsHitTesting);
    EXPECT_EQ(row.clear, Clear::enabled);
}

TEST_F(HotkeySettings, a_binding_stands_on_a_faint_capsule_and_its_button_says_clear) {
    EXPECT_EQ(ShortcutRow::capsulePaddingX, 8);
    EXPECT_EQ(ShortcutRow::capsulePaddingY, 4);
    EXPECT_EQ(ShortcutRow::capsuleOpacity, 0.15);
    EXPECT_STREQ(ShortcutRow::clearTitle, "Clear");
}

TEST_F(HotkeySettings, an_action_without_a_binding_shows_that_and_has_nothing_to_clear) {
    const auto row = state(HotkeyAction::undo);
    EXPECT_FALSE(row.binding);
    EXPECT_STREQ(ShortcutRow::notSetText, "Not set");
    EXPECT_EQ(row.recorder.title, "Change");
    EXPECT_TRUE(row.allowsHitTesting);
    EXPECT_EQ(row.clear, Clear::absent);
}

TEST_F(HotkeySettings, a_recording_takes_all_shortcuts_out_of_service) {
    begin(HotkeyAction::toggleZoom);
    EXPECT_EQ(liveCount(), 0U);
    const auto row = state(HotkeyAction::toggleZoom);
    EXPECT_EQ(row.recorder.title, "Press shortcut…");
    EXPECT_TRUE(row.recorder.isRecording);
    EXPECT_TRUE(row.allowsHitTesting);
    EXPECT_EQ(row.clear, Clear::disabled);
}

TEST_F(HotkeySettings, no_other_row_can_begin_while_one_records) {
    begin(HotkeyAction::toggleZoom);
    for (const HotkeyAction action : allCases<HotkeyAction>()) {
        EXPECT_EQ(state(action).allowsHitTesting, action == HotkeyAction::toggleZoom);
        EXPECT_EQ(state(action).recorder.isRecording, action == HotkeyAction::toggleZoom);
        EXPECT_NE(state(action).clear, Clear::enabled);
    }
    EXPECT_EQ(state(HotkeyAction::undo).recorder.title, "Change");
    EXPECT_EQ(state(HotkeyAction::undo).clear, Clear::absent);
}

TEST_F(HotkeySettings, a_click_on_the_recording_row_goes_on_recording) {
    begin(HotkeyAction::toggleZoom);
    begin(HotkeyAction::toggleZoom);
    EXPECT_TRUE(state(HotkeyAction::toggleZoom).recorder.isRecording);
    EXPECT_EQ(liveCount(), 0U);
}

TEST_F(HotkeySettings, a_cancelled_recording_puts_the_shortcuts_back_and_changes_nothing) {
    const HotkeyMap before = settings().hotkeys;
    begin(HotkeyAction::toggleZoom);
    state(HotkeyAction::toggleZoom).recorder.onCancel();
    EXPECT_EQ(liveCount(), 6U);
    EXPECT_FALSE(state(HotkeyAction::toggleZoom).recorder.isRecording);
    EXPECT_EQ(settings().hotkeys.get(), before);
}

TEST_F(HotkeySettings, a_captured_shortcut_is_stored_and_comes_into_service) {
    begin(HotkeyAction::undo);
    capture(HotkeyAction::undo, 6, controlKey);
    EXPECT_EQ(binding(HotkeyAction::undo), (HotkeyConfig{6, controlKey, HotkeyAction::undo}));
    EXPECT_EQ(state(HotkeyAction::undo).binding, "⌃Z");
    EXPECT_EQ(state(HotkeyAction::undo).clear, Clear::enabled);
    EXPECT_FALSE(state(HotkeyAction::undo).recorder.isRecording);
    EXPECT_FALSE(alertMessage());
    EXPECT_EQ(liveCount(), 7U);
}

TEST_F(HotkeySettings, a_captured_shortcut_survives_the_end_of_the_program) {
    begin(HotkeyAction::undo);
    host.userDefaults.writes.clear();
    capture(HotkeyAction::undo, 6, controlKey);
    EXPECT_EQ(host.userDefaults.writes, std::vector<std::string>{"hotkeys"});
}

TEST_F(HotkeySettings, the_success_path_leaves_the_registering_to_the_observer_of_the_bindings) {
    begin(HotkeyAction::undo);
    state(HotkeyAction::undo).recorder.onCapture(6, controlKey);
    EXPECT_EQ(liveCount(), 0U);
    host.mainQueue.run();
    EXPECT_EQ(liveCount(), 7U);
}

TEST_F(HotkeySettings, a_shortcut_of_another_action_is_refused) {
    const HotkeyMap before = settings().hotkeys;
    const HotkeyConfig other = before.at(HotkeyAction::toggleWhiteboard);
    begin(HotkeyAction::toggleAnnotation);
    host.userDefaults.writes.clear();
    state(HotkeyAction::toggleAnnotation).recorder.onCapture(other.keyCode, other.modifiers);
    EXPECT_EQ(alertMessage(), kConflict);
    EXPECT_EQ(form().alert()->title, "Shortcut Not Set");
    EXPECT_EQ(form().alert()->button, "OK");
    EXPECT_EQ(settings().hotkeys.get(), before);
    EXPECT_TRUE(host.userDefaults.writes.empty());
    EXPECT_FALSE(state(HotkeyAction::toggleAnnotation).recorder.isRecording);
    EXPECT_EQ(liveCount(), 6U);
}

TEST_F(HotkeySettings, the_conflict_is_with_the_action_under_which_a_binding_is_filed) {
    // A binding that repeats another action than its own key, as a damaged store may hold.
    settings().hotkeys =
        HotkeyMap{{HotkeyAction::redo, {6, controlKey, HotkeyAction::toggleAnnotation}}};
    begin(HotkeyAction::toggleAnnotation);
    capture(HotkeyAction::toggleAnnotation, 6, controlKey);
    EXPECT_EQ(alertMessage(), kConflict);
}

TEST_F(HotkeySettings, an_action_may_be_given_the_shortcut_that_it_has) {
    const auto own = *binding(HotkeyAction::toggleAnnotation);
    begin(HotkeyAction::toggleAnnotation);
    host.userDefaults.writes.clear();
    capture(HotkeyAction::toggleAnnotation, own.keyCode, own.modifiers);
    EXPECT_FALSE(alertMessage());
    EXPECT_EQ(host.userDefaults.writes, std::vector<std::string>{"hotkeys"});
    EXPECT_EQ(binding(HotkeyAction::toggleAnnotation), own);
    EXPECT_EQ(liveCount(), 6U);
}

TEST_F(HotkeySettings, the_same_key_with_other_modifiers_is_no_conflict) {
    const auto other = *binding(HotkeyAction::toggleWhiteboard);
    begin(HotkeyAction::toggleAnnotation);
    capture(HotkeyAction::toggleAnnotation, other.keyCode, controlKey);
    EXPECT_FALSE(alertMessage());
    EXPECT_EQ(binding(HotkeyAction::toggleAnnotation)->keyCode, other.keyCode);
}

TEST_F(HotkeySettings, a_missing_modifier_opens_the_alert_and_the_recording_goes_on) {
    begin(HotkeyAction::toggleAnnotation);
    state(HotkeyAction::toggleAnnotation).recorder.onRequireModifier();
    EXPECT_EQ(alertMessage(), kModifierMissing);
    EXPECT_EQ(form().alert()->title, "Shortcut Not Set");
    EXPECT_TRUE(state(HotkeyAction::toggleAnnotation).recorder.isRecording);
    EXPECT_EQ(liveCount(), 0U);
}

TEST_F(HotkeySettings, the_alert_goes_when_it_is_dismissed) {
    begin(HotkeyAction::toggleAnnotation);
    state(HotkeyAction::toggleAnnotation).recorder.onRequireModifier();
    form().alert()->dismiss();
    EXPECT_FALSE(alertMessage());
    EXPECT_TRUE(state(HotkeyAction::toggleAnnotation).recorder.isRecording);
}

TEST_F(HotkeySettings, clear_unbinds_the_action_and_does_not_bring_its_default_back) {
    row(HotkeyAction::toggleAnnotation).clear();
    host.mainQueue.run();
    EXPECT_FALSE(binding(HotkeyAction::toggleAnnotation));
    EXPECT_FALSE(state(HotkeyAction::toggleAnnotation).binding);
    EXPECT_EQ(state(HotkeyAction::toggleAnnotation).clear, Clear::absent);
    EXPECT_EQ(liveCount(), 5U);
}

TEST_F(HotkeySettings, clear_of_the_action_being_recorded_ends_the_recording) {
    begin(HotkeyAction::toggleAnnotation);
    row(HotkeyAction::toggleAnnotation).clear();
    EXPECT_FALSE(state(HotkeyAction::toggleAnnotation).recorder.isRecording);
}

TEST_F(HotkeySettings, a_recording_left_by_way_of_another_tab_puts_the_shortcuts_back) {
    begin(HotkeyAction::toggleAnnotation);
    view.select(SettingsTab::about);
    EXPECT_EQ(liveCount(), 6U);
    view.select(SettingsTab::hotkeys);
    EXPECT_FALSE(state(HotkeyAction::toggleAnnotation).recorder.isRecording);
}

TEST_F(HotkeySettings, a_recording_left_by_closing_the_window_puts_the_shortcuts_back) {
    begin(HotkeyAction::toggleAnnotation);
    view.onDisappear();
    EXPECT_EQ(liveCount(), 6U);
}

TEST_F(HotkeySettings, a_reset_ends_a_recording_and_the_default_shortcuts_are_in_service) {
    row(HotkeyAction::toggleZoom).clear();
    host.mainQueue.run();
    begin(HotkeyAction::undo);
    view.toolbar().front().action();
    host.mainQueue.run();
    EXPECT_FALSE(state(HotkeyAction::undo).recorder.isRecording);
    EXPECT_EQ(state(HotkeyAction::toggleZoom).binding, "⌘⇧X");
    EXPECT_EQ(liveCount(), HotkeyConfig::defaults().size());
}

TEST_F(HotkeySettings, leaving_the_tab_without_a_recording_registers_nothing_anew) {
    const auto ids = hotkeyManager.hotkeyIDCounter();
    view.select(SettingsTab::about);
    EXPECT_EQ(hotkeyManager.hotkeyIDCounter(), ids);
}

TEST_F(HotkeySettings, the_shortcuts_are_out_of_service_before_the_row_records) {
    std::vector<std::size_t> counts;
    const auto observed = view.objectWillChange.sink([&] { counts.push_back(liveCount()); });
    begin(HotkeyAction::undo);
    EXPECT_EQ(counts, std::vector<std::size_t>{0});
}

TEST_F(HotkeySettings, a_cancelled_row_stops_recording_before_the_shortcuts_come_back) {
    begin(HotkeyAction::undo);
    std::vector<std::size_t> counts;
    const auto observed = view.objectWillChange.sink([&] { counts.push_back(liveCount()); });
    state(HotkeyAction::undo).recorder.onCancel();
    EXPECT_EQ(counts, std::vector<std::size_t>{0});
    EXPECT_EQ(liveCount(), 6U);
}

TEST_F(HotkeySettings, after_a_refusal_the_row_stops_the_shortcuts_come_back_and_the_alert_opens) {
    const auto other = *binding(HotkeyAction::toggleWhiteboard);
    begin(HotkeyAction::undo);
    std::vector<std::size_t> counts;
    const auto observed = view.objectWillChange.sink([&] { counts.push_back(liveCount()); });
    state(HotkeyAction::undo).recorder.onCapture(other.keyCode, other.modifiers);
    EXPECT_EQ(counts, (std::vector<std::size_t>{0, 6}));
}

TEST_F(HotkeySettings, a_captured_shortcut_is_stored_before_the_row_stops_recording) {
    begin(HotkeyAction::undo);
    std::vector<bool> isBound;
    const auto observed = view.objectWillChange.sink(
        [&] { isBound.push_back(binding(HotkeyAction::undo).has_value()); });
    state(HotkeyAction::undo).recorder.onCapture(6, controlKey);
    EXPECT_EQ(isBound, (std::vector<bool>{false, true}));
}

TEST_F(HotkeySettings, every_step_of_a_recording_is_announced) {
    int changes = 0;
    const auto observed = view.objectWillChange.sink([&] { ++changes; });
    begin(HotkeyAction::toggleAnnotation);
    EXPECT_EQ(changes, 1);
    state(HotkeyAction::toggleAnnotation).recorder.onRequireModifier();
    EXPECT_EQ(changes, 2);
    form().alert()->dismiss();
    EXPECT_EQ(changes, 3);
    state(HotkeyAction::toggleAnnotation).recorder.onCancel();
    EXPECT_EQ(changes, 4);
}

} // namespace quillon::test
