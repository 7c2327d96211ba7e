#pragma once

// This header speaks for its folder: the labels of bindings and the recorder come with it.
#include "foundation/Published.h"
#include "model/HotkeyAction.h"
#include "model/HotkeyConfig.h"
#include "platform/Host.h"
#include "shortcuts/HotkeyIDCounter.h"
#include "shortcuts/HotkeyShortcutFormatter.h"
#include "shortcuts/ShortcutRecorderView.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace quillon {

/// Turns bindings into system-wide hot keys, and each press back into one notification.
///
/// The way of one press:
/// 1. the desktop calls the installed handler, which passes the event on to `handleEvent`;
/// 2. `handleEvent` reads the id of the hot key and looks its action up; a press whose id is not,
///    or no longer, known is dropped;
/// 3. the action is handed to the main queue, so the handler returns at once;
/// 4. in a later turn `handleHotkeyAction` posts the action's notification.
///
/// Whether it listens and what is registered are two independent states. It knows neither what an
/// action does nor where bindings are stored. A failure prints one line on standard output, leaves
/// every other binding as it is, and reaches nobody else. Main thread only.
class HotkeyManager : public ObservableObject, public std::enable_shared_from_this<HotkeyManager> {
public:
    /// The one instance of the installed host.
    static HotkeyManager& shared();

    /// Gives back whatever is still registered or installed.
    ~HotkeyManager();

    /// Replaces every registration by one for each pair, under new ids. The key of a pair says
    /// which action it is for; the action inside the binding plays no part.
    void registerHotkeys(const HotkeyMap& hotkeys);

    /// Registers one binding as it stands. Uses up an id even when the desktop refuses it, and then
    /// prints "Failed to register hotkey for <displayName>: <status>".
    void registerHotkey(HotkeyAction action, const HotkeyConfig& config);

    /// Drops every registration. The handler stays installed, and ids go on growing.
    void unregisterAllHotkeys();

    /// Installs the handler, unless it is. A refusal prints
    /// "Failed to install event handler: <status>"; a later call tries again.
    void startListening();
    void stopListening();

    /// Posts the action's notification, with no object and no user information.
    void handleHotkeyAction(HotkeyAction action);

    /// What the installed handler does with an event; `userData` is the manager.
    /// `eventNotHandledErr` when either is missing; `noErr` for every event that it got hold of.
    static OSStatus handleEvent(const HotKeyEvent* event, void* userData);

    const std::vector<EventHotKeyRef>& hotkeyRefs() const { return m_hotkeyRefs; }
    std::uint32_t hotkeyIDCounter() const { return m_hotkeyIDCounter.next(); }
    const std::map<std::uint32_t, HotkeyAction>& hotkeyActions() const { return m_hotkeyActions; }
    std::optional<EventHandlerRef> eventHandlerRef() const { return m_eventHandlerRef; }

private:
    explicit HotkeyManager(Host& host);

    HotKeys& m_hotKeys;
    MainQueue& m_mainQueue;
    NotificationCenter& m_notificationCenter;

    std::vector<EventHotKeyRef> m_hotkeyRefs;
    HotkeyIDCounter m_hotkeyIDCounter;
    std::map<std::uint32_t, HotkeyAction> m_hotkeyActions;
    std::optional<EventHandlerRef> m_eventHandlerRef;
};

} // namespace quillon
