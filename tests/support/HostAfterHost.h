#pragma once

#include "support/FakePorts.h"

#include <optional>

namespace quillon::test {

/// A host that ends and another one on the same ports. What waits in the queue stays there beyond
/// the end, so that a test can tell whether it does any harm.
class HostAfterHost {
public:
    HostAfterHost();
    ~HostAfterHost();
    HostAfterHost(const HostAfterHost&) = delete;
    HostAfterHost& operator=(const HostAfterHost&) = delete;

    FakeWindows& windows() { return m_fakes.windows; }
    FakeEventMonitors& eventMonitors() { return m_fakes.eventMonitors; }
    HandTurnedQueue& queue() { return m_queue; }

    /// Ends the host, makes the next one, and forgets what was asked of the windows so far.
    void replaceHost();

private:
    struct KeepingQueue : HandTurnedQueue {
        void clear() override {}
    };

    FakePorts m_fakes;
    KeepingQueue m_queue;
    std::optional<Host> m_host;
};

} // namespace quillon::test
