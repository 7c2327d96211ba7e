#include "settings/HotkeySettingsView.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr const char* kConflict = "That shortcut is already assigned to another action.";
constexpr const char* kModifierMissing =
    "Shortcuts must include at least one modifier key (⌘, ⇧, ⌥, or ⌃).";

} // namespace

PageContent HotkeySettingsView::content() {
    FormSection shortcuts{"Global Shortcuts", {}};
    for (const HotkeyAction action : allCases<HotkeyAction>()) {
        shortcuts.rows.emplace_back(row(action));
    }
    return Form{"Keyboard Shortcuts", {std::move(shortcuts)}, [this] { return alert(); }};
}

void HotkeySettingsView::onDisappear() {
    if (isEditingHotkey()) {
        cancelRecording();
    }
}

bool HotkeySettingsView::configExists(HotkeyAction action) const {
    return m_appSettings.hotkeys->contains(action);
}

void HotkeySettingsView::saveShortcut(std::uint32_t keyCode, std::uint32_t modifiers,
                                      HotkeyAction action) {
    const HotkeyMap& hotkeys = m_appSettings.hotkeys;
    const bool isTaken = std::ranges::any_of(hotkeys, [&](const auto& entry) {
        return entry.first != action && entry.second.keyCode == keyCode &&
               entry.second.modifiers == modifiers;
    });
    if (isTaken) {
        cancelRecording();
        m_alertMessage = kConflict;
        return;
    }
    m_appSettings.hotkeys.modify([&](HotkeyMap& bindings) {
        bindings[action] = {keyCode, modifiers, action};
    });
    m_isEditingHotkey = std::nullopt;
}

void HotkeySettingsView::beginRecording(HotkeyAction action) {
    m_hotkeyManager.unregisterAllHotkeys();
    m_isEditingHotkey = action;
}

void HotkeySettingsView::cancelRecording() {
    m_isEditingHotkey = std::nullopt;
    m_hotkeyManager.registerHotkeys(m_appSettings.hotkeys);
}

void HotkeySettingsView::clearShortcut(HotkeyAction action) {
    m_appSettings.hotkeys.modify([&](HotkeyMap& bindings) { bindings.erase(action); });
    if (isEditingHotkey() == action) {
        m_isEditingHotkey = std::nullopt;
    }
}

ShortcutRow HotkeySettingsView::row(HotkeyAction action) {
    return {std::string(displayName(action)), [this, action] { return state(action); },
            [this, action] { clearShortcut(action); }};
}

ShortcutRowState HotkeySettingsView::state(HotkeyAction action) {
    const auto editing = isEditingHotkey();
    const bool isRecording = editing == action;
    ShortcutRowState state;
    state.recorder = {
        isRecording ? "Press shortcut…" : "Change",
        isRecording,
        [this, action] { beginRecording(action); },
        [this] { cancelRecording(); },
        [this, action](std::uint32_t keyCode, std::uint32_t modifiers) {
            saveShortcut(keyCode, modifiers, action);
        },
        [this] { m_alertMessage = kModifierMissing; },
    };
    state.allowsHitTesting = !editing || isRecording;
    if (configExists(action)) {
        state.binding = HotkeyShortcutFormatter::label(m_appSettings.hotkeys->at(action));
        state.clear =
            editing ? ShortcutRowState::Clear::disabled : ShortcutRowState::Clear::enabled;
    }
    return state;
}

std::optional<Alert> HotkeySettingsView::alert() {
    if (!alertMessage()) {
        return std::nullopt;
    }
    return Alert{"Shortcut Not Set", *alertMessage(), "OK",
                 [this] { m_alertMessage = std::nullopt; }};
}

} // namespace quillon
