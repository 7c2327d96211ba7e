#pragma once

#include "platform/EventMonitors.h"

namespace quillon::desktop {

/// Watches nothing yet: adding a monitor gives no token.
class X11EventMonitors : public EventMonitors {
public:
    std::optional<EventMonitorToken>
    addGlobalMonitorForEventsMatchingMask(std::uint64_t mask, GlobalHandler handler) override;
    std::optional<EventMonitorToken>
    addLocalMonitorForEventsMatchingMask(std::uint64_t mask, LocalHandler handler) override;
    void removeMonitor(EventMonitorToken token) override;
    CGPoint mouseLocation() const override;
};

} // namespace quillon::desktop
