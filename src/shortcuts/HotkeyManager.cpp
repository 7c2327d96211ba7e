#include "shortcuts/HotkeyManager.h"

#include "foundation/FatalError.h"
#include "foundation/PrintLine.h"
#include "model/NotificationNames.h"
#include "shortcuts/FourCharCode.h"

#include <string>
#include <string_view>

namespace quillon {

namespace {

std::string_view notificationName(HotkeyAction action) {
    switch (action) {
    case HotkeyAction::toggleAnnotation:
        return NotificationName::toggleAnnotation;
    case HotkeyAction::toggleWhiteboard:
        return NotificationName::toggleWhiteboard;
    case HotkeyAction::toggleCursorHalo:
        return NotificationName::toggleCursorHalo;
    case HotkeyAction::toggleSpotlight:
        return NotificationName::toggleSpotlight;
    case HotkeyAction::toggleZoom:
        return NotificationName::toggleZoom;
    case HotkeyAction::clearAnnotations:
        return NotificationName::clearAnnotations;
    case HotkeyAction::undo:
        return NotificationName::undoAnnotation;
    case HotkeyAction::redo:
        return NotificationName::redoAnnotation;
    }
    fatalError("a hot-key action has no notification");
}

OSStatus eventHandler(const HotKeyEvent* event, void* userData) {
    return HotkeyManager::handleEvent(event, userData);
}

} // namespace

HotkeyManager& HotkeyManager::shared() {
    Host& host = Host::current();
    return host.shared<HotkeyManager>(
        [&host] { return std::shared_ptr<HotkeyManager>(new HotkeyManager(host)); });
}

HotkeyManager::HotkeyManager(Host& host)
    : m_hotKeys(host.hotKeys())
    , m_mainQueue(host.mainQueue())
    , m_notificationCenter(host.notificationCenter()) {}

HotkeyManager::~HotkeyManager() {
    unregisterAllHotkeys();
    stopListening();
}

void HotkeyManager::registerHotkeys(const HotkeyMap& hotkeys) {
    unregisterAllHotkeys();
    for (const auto& [action, config] : hotkeys) {
        registerHotkey(action, config);
    }
}

void HotkeyManager::registerHotkey(HotkeyAction action, const HotkeyConfig& config) {
    constexpr std::uint32_t signature = fourCharCodeValue("ORVL");
    const std::uint32_t id = m_hotkeyIDCounter.take();
    const auto [status, ref] =
        m_hotKeys.registerEventHotKey(config.keyCode, config.modifiers, {signature, id},
                                      m_hotKeys.getApplicationEventTarget(), 0);
    if (status == noErr && ref) {
        m_hotkeyRefs.push_back(*ref);
        m_hotkeyActions[id] = action;
    } else {
        printLine("Failed to register hotkey for " + std::string(displayName(action)) + ": " +
                  std::to_string(status));
    }
}

void HotkeyManager::unregisterAllHotkeys() {
    for (const EventHotKeyRef ref : m_hotkeyRefs) {
        m_hotKeys.unregisterEventHotKey(ref);
    }
    m_hotkeyRefs.clear();
    m_hotkeyActions.clear();
}

void HotkeyManager::startListening() {
    if (m_eventHandlerRef) {
        return;
    }
    const auto [status, ref] =
        m_hotKeys.installEventHandler(m_hotKeys.getApplicationEventTarget(), &eventHandler,
                                      {kEventClassKeyboard, kEventHotKeyPressed}, this);
    if (status == noErr) {
        m_eventHandlerRef = ref;
    } else {
        printLine("Failed to install event handler: " + std::to_string(status));
    }
}

void HotkeyManager::stopListening() {
    if (m_eventHandlerRef) {
        m_hotKeys.removeEventHandler(*m_eventHandlerRef);
        m_eventHandlerRef.reset();
    }
}

void HotkeyManager::handleHotkeyAction(HotkeyAction action) {
    m_notificationCenter.post(notificationName(action));
}

OSStatus HotkeyManager::handleEvent(const HotKeyEvent* event, void* userData) {
    if (!event || !userData) {
        return eventNotHandledErr;
    }
    auto& manager = *static_cast<HotkeyManager*>(userData);
    const auto hotKeyID = manager.m_hotKeys.getEventParameter(*event);
    if (!hotKeyID) {
        return noErr;
    }
    const auto found = manager.m_hotkeyActions.find(hotKeyID->id);
    if (found == manager.m_hotkeyActions.end()) {
        return noErr;
    }
    manager.m_mainQueue.async([weak = manager.weak_from_this(), action = found->second] {
        if (const auto living = weak.lock()) {
            living->handleHotkeyAction(action);
        }
    });
    return noErr;
}

} // namespace quillon
