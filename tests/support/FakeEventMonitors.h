#pragma once

#include "platform/EventMonitors.h"

#include <map>
#include <utility>

namespace quillon::test {

/// A pointer that a test moves and presses.
class FakeEventMonitors : public EventMonitors {
public:
    std::optional<EventMonitorToken>
    addGlobalMonitorForEventsMatchingMask(std::uint64_t mask, GlobalHandler handler) override {
        return offersGlobalMonitors ? add(globalMonitors, mask, std::move(handler)) : std::nullopt;
    }
    std::optional<EventMonitorToken>
    addLocalMonitorForEventsMatchingMask(std::uint64_t mask, LocalHandler handler) override {
        return offersLocalMonitors ? add(localMonitors, mask, std::move(handler)) : std::nullopt;
    }
    void removeMonitor(EventMonitorToken token) override {
        removals += static_cast<int>(globalMonitors.erase(token) + localMonitors.erase(token));
    }
    CGPoint mouseLocation() const override { return location; }

    /// An event at `place` that goes to another program.
    void sendToOthers(NSEventType type, CGPoint place) {
        location = place;
        report(globalMonitors, {type});
    }
    /// An event at `place` that goes to a window of the program.
    void sendToOwnWindow(NSEventType type, CGPoint place) {
        location = place;
        report(localMonitors, {type});
    }

    template <typename Handler>
    struct Monitor {
        std::uint64_t mask = 0;
        Handler handler;
    };

    CGPoint location;
    /// False makes every addition of that kind fail.
    bool offersGlobalMonitors = true;
    bool offersLocalMonitors = true;
    int removals = 0;
    std::map<EventMonitorToken, Monitor<GlobalHandler>> globalMonitors;
    std::map<EventMonitorToken, Monitor<LocalHandler>> localMonitors;

private:
    template <typename Handler>
    std::optional<EventMonitorToken> add(std::map<EventMonitorToken, Monitor<Handler>>& monitors,
                                         std::uint64_t mask, Handler handler) {
        const EventMonitorToken token{++m_lastToken};
        monitors[token] = {mask, std::move(handler)};
        return token;
    }

    template <typename Handler>
    static void report(const std::map<EventMonitorToken, Monitor<Handler>>& monitors,
                       const NSEvent& event) {
        const auto present = monitors;
        for (const auto& [token, monitor] : present) {
            if ((monitor.mask & event.mask()) != 0) {
                monitor.handler(event);
            }
        }
    }

    std::uint64_t m_lastToken = 0;
};

} // namespace quillon::test
