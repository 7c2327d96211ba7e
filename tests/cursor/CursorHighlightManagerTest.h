#pragma once

#include "cursor/CursorTest.h"

#include <algorithm>
#include <cstdint>

namespace quillon::test {

inline constexpr CGPoint kPlace{500, 300};

/// The manager of the halo, switched on and off.
struct CursorHighlightManagerTest : CursorTest {
    void enable() {
        manager().isEnabled = true;
        host.mainQueue.run();
    }
    void disable() {
        manager().isEnabled = false;
        host.mainQueue.run();
    }
    std::uint64_t globalMask() { return host.eventMonitors.globalMonitors.begin()->second.mask; }
    std::uint64_t localMask() { return host.eventMonitors.localMonitors.begin()->second.mask; }
    int count(const char* call) {
        return static_cast<int>(std::ranges::count(host.windows.calls, call));
    }
};

} // namespace quillon::test
