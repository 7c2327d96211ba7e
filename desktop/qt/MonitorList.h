#pragma once

#include "platform/EventMonitors.h"

#include <cstdint>
#include <map>
#include <utility>

namespace quillon::desktop {

/// Monitors of one kind, asked in the order in which they were added. A handler may add monitors,
/// which hear the next event first, and remove any, which then is not asked any more.
template <typename Handler>
class MonitorList {
public:
    void add(EventMonitorToken token, std::uint64_t mask, Handler handler) {
        m_monitors.emplace(token, Monitor{mask, std::move(handler)});
    }
    void remove(EventMonitorToken token) { m_monitors.erase(token); }
    bool isEmpty() const { return m_monitors.empty(); }

    void report(const NSEvent& event) const {
        const auto present = m_monitors;
        for (const auto& [token, monitor] : present) {
            if ((monitor.mask & event.mask()) != 0 && m_monitors.contains(token)) {
                monitor.handler(event);
            }
        }
    }

private:
    struct Monitor {
        std::uint64_t mask = 0;
        Handler handler;
    };

    std::map<EventMonitorToken, Monitor> m_monitors;
};

} // namespace quillon::desktop
