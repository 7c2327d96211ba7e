#include "support/FakeEventMonitors.h"

#include <utility>

namespace quillon::test {

namespace {

template <typename Monitors>
void report(const Monitors& monitors, const NSEvent& event) {
    const auto present = monitors;
    for (const auto& [token, monitor] : present) {
        if ((monitor.mask & event.mask()) != 0) {
            monitor.handler(event);
        }
    }
}

} // namespace

std::optional<EventMonitorToken>
FakeEventMonitors::addGlobalMonitorForEventsMatchingMask(std::uint64_t mask,
                                                         GlobalHandler handler) {
    if (!offersGlobalMonitors) {
        return std::nullopt;
    }
    const EventMonitorToken token{++m_lastToken};
    globalMonitors[token] = {mask, std::move(handler)};
    return token;
}

std::optional<EventMonitorToken>
FakeEventMonitors::addLocalMonitorForEventsMatchingMask(std::uint64_t mask, LocalHandler handler) {
    if (!offersLocalMonitors) {
        return std::nullopt;
    }
    const EventMonitorToken token{++m_lastToken};
    localMonitors[token] = {mask, std::move(handler)};
    return token;
}

void FakeEventMonitors::removeMonitor(EventMonitorToken token) {
    removals += static_cast<int>(globalMonitors.erase(token) + localMonitors.erase(token));
}

void FakeEventMonitors::sendToOthers(NSEventType type, CGPoint place) {
    location = place;
    report(globalMonitors, {type});
}

void FakeEventMonitors::sendToOwnWindow(NSEventType type, CGPoint place) {
    location = place;
    report(localMonitors, {type});
}

} // namespace quillon::test
