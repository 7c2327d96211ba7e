#pragma once

#include "platform/HotKeys.h"

#include <algorithm>
#include <map>
#include <vector>

namespace quillon::test {

/// A hot-key system that a test presses by hand. Like a real one it refuses a combination that is
/// taken.
class FakeHotKeys : public HotKeys {
public:
    struct Registered {
        std::uint32_t keyCode;
        std::uint32_t modifiers;
        EventHotKeyID id;
        std::uint32_t options;
    };
    struct Event : HotKeyEvent {
        std::optional<EventHotKeyID> id;
    };

    EventTarget getApplicationEventTarget() const override { return EventTarget::application; }

    Registration registerEventHotKey(std::uint32_t keyCode, std::uint32_t modifiers,
                                     EventHotKeyID id, EventTarget,
                                     std::uint32_t options) override {
        if (oddAnswer) {
            return *oddAnswer;
        }
        const bool taken = std::ranges::any_of(registered, [&](const auto& entry) {
            return entry.second.keyCode == keyCode && entry.second.modifiers == modifiers;
        });
        if (taken || std::ranges::find(takenByOthers, keyCode) != takenByOthers.end()) {
            return {eventHotKeyExistsErr, std::nullopt};
        }
        const EventHotKeyRef ref{++m_lastRef};
        registered.emplace(ref, Registered{keyCode, modifiers, id, options});
        return {noErr, ref};
    }

    void unregisterEventHotKey(EventHotKeyRef ref) override { registered.erase(ref); }

    Installation installEventHandler(EventTarget, EventHandler newHandler, EventTypeSpec type,
                                     void* newUserData) override {
        if (installationStatus != noErr) {
            return {installationStatus, std::nullopt};
        }
        ++installations;
        handler = newHandler;
        handledType = type;
        userData = newUserData;
        return {noErr, EventHandlerRef{1}};
    }

    void removeEventHandler(EventHandlerRef) override {
        ++removals;
        handler = nullptr;
    }

    std::optional<EventHotKeyID> getEventParameter(const HotKeyEvent& event) const override {
        return static_cast<const Event&>(event).id;
    }

    /// Presses a combination; the handler's answer, or nothing when nobody listens to it.
    std::optional<OSStatus> press(std::uint32_t keyCode, std::uint32_t modifiers) {
        for (const auto& [ref, entry] : registered) {
            if (entry.keyCode == keyCode && entry.modifiers == modifiers && handler) {
                Event event;
                event.id = entry.id;
                return handler(&event, userData);
            }
        }
        return std::nullopt;
    }

    std::map<EventHotKeyRef, Registered> registered;
    /// Key codes that another program holds, with any modifiers.
    std::vector<std::uint32_t> takenByOthers;
    /// What every registration is answered with, whatever is asked.
    std::optional<Registration> oddAnswer;
    OSStatus installationStatus = noErr;
    EventHandler handler = nullptr;
    EventTypeSpec handledType;
    void* userData = nullptr;
    int installations = 0;
    int removals = 0;

private:
    std::uint64_t m_lastRef = 0;
};

} // namespace quillon::test
