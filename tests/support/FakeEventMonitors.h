#pragma once

#include "platform/EventMonitors.h"

#include <cstdint>
#include <map>
#include <optional>

namespace quillon::test {

/// A pointer that a test moves and presses.
class FakeEventMonitors : public EventMonitors {
public:
    std::optional<EventMonitorToken>
    addGlobalMonitorForEventsMatchingMask(std::uint64_t mask, GlobalHandler handler) override;
    std::optional<EventMonitorToken>
    addLocalMonitorForEventsMatchingMask(std::uint64_t mask, LocalHandler handler) override;
    void removeMonitor(EventMonitorToken token) override;
    CGPoint mouseLocation() const override { return location; }

    /// An event at `place` that goes to another program.
    void sendToOthers(NSEventType type, CGPoint place);
    /// An event at `place` that goes to a window of the program.
    void sendToOwnWindow(NSEventType type, CGPoint place);

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
    std::uint64_t m_lastToken = 0;
};

} // namespace quillon::test
