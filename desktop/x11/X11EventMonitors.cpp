#include "desktop/x11/X11EventMonitors.h"

namespace quillon::desktop {

std::optional<EventMonitorToken>
X11EventMonitors::addGlobalMonitorForEventsMatchingMask(std::uint64_t /*mask*/,
                                                        GlobalHandler /*handler*/) {
    return std::nullopt;
}

std::optional<EventMonitorToken>
X11EventMonitors::addLocalMonitorForEventsMatchingMask(std::uint64_t /*mask*/,
                                                       LocalHandler /*handler*/) {
    return std::nullopt;
}

void X11EventMonitors::removeMonitor(EventMonitorToken /*token*/) {}

CGPoint X11EventMonitors::mouseLocation() const {
    return {};
}

} // namespace quillon::desktop
