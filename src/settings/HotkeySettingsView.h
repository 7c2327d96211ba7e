#pragma once

#include "model/AppSettings.h"
#include "settings/SettingsPage.h"
#include "shortcuts/HotkeyManager.h"

#include <cstdint>
#include <optional>
#include <string>

namespace quillon {

/// The tab "Shortcuts": binds, rebinds and clears the global shortcut of each action.
///
/// One recording:
/// 1. it begins by taking all global shortcuts out of service; no other row can begin one;
/// 2. a key without a modifier opens the alert, and the recording goes on;
/// 3. it ends by Escape, by a combination that another action has, which opens the alert, or by
///    storing the new binding. The first two put the shortcuts back into service here; the third
///    does so by the change of the bindings, which their observer hears.
///
/// A recording that is still running when the page leaves the screen ends like one by Escape.
class HotkeySettingsView : public SettingsPage {
public:
    HotkeySettingsView(AppSettings& appSettings, HotkeyManager& hotkeyManager)
        : m_appSettings(appSettings)
        , m_hotkeyManager(hotkeyManager) {}

    PageContent content() override;
    void onDisappear() override;

    /// The action being recorded.
    std::optional<HotkeyAction> isEditingHotkey() const { return m_isEditingHotkey; }
    /// The text of the alert; present means that it shows.
    const std::optional<std::string>& alertMessage() const { return m_alertMessage; }

private:
    bool configExists(HotkeyAction action) const;
    /// Stores a captured shortcut, or refuses it when another action has it.
    void saveShortcut(std::uint32_t keyCode, std::uint32_t modifiers, HotkeyAction action);
    void beginRecording(HotkeyAction action);
    void cancelRecording();
    void clearShortcut(HotkeyAction action);

    ShortcutRow row(HotkeyAction action);
    ShortcutRowState state(HotkeyAction action);
    std::optional<Alert> alert();

    AppSettings& m_appSettings;
    HotkeyManager& m_hotkeyManager;
    Published<std::optional<HotkeyAction>> m_isEditingHotkey{*this, std::nullopt};
    Published<std::optional<std::string>> m_alertMessage{*this, std::nullopt};
};

} // namespace quillon
