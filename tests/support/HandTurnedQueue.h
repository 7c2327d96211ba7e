#pragma once

#include "platform/MainQueue.h"

#include <cstdint>
#include <map>
#include <utility>

namespace quillon::test {

/// A main queue that a test turns by hand, with a clock that moves only when the test says so.
class HandTurnedQueue : public MainQueue {
public:
    void async(Work work) override;
    void asyncAfter(double seconds, Work work) override;
    double now() const override { return m_now; }
    void clear() override;

    bool isIdle() const;

    /// Runs what was due when the call began; what that hands in waits for a later turn.
    void turn();

    /// Turns until nothing is due.
    void run();

    /// Moves the clock on, and runs nothing.
    void pass(double seconds) { m_now += seconds; }

    /// Moves the clock on, and runs everything that falls due on the way at its own time.
    void advance(double seconds);

private:
    double m_now = 1000;
    std::uint64_t m_order = 0;
    /// By deadline, then by order of arrival.
    std::map<std::pair<double, std::uint64_t>, Work> m_pending;
};

} // namespace quillon::test
