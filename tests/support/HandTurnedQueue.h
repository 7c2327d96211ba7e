#pragma once

#include "platform/MainQueue.h"

#include <cstdint>
#include <map>
#include <utility>

namespace quillon::test {

/// A main queue that a test turns by hand, with a clock that moves only when the test says so.
class HandTurnedQueue : public MainQueue {
public:
    void async(Work work) override { asyncAfter(0, std::move(work)); }

    void asyncAfter(double seconds, Work work) override {
        m_pending.emplace(std::pair(m_now + (seconds > 0 ? seconds : 0), m_order++),
                          std::move(work));
    }

    double now() const override { return m_now; }

    void clear() override { m_pending.clear(); }

    bool isIdle() const { return m_pending.empty(); }

    /// Runs what was due when the call began; what that hands in waits for a later turn.
    void turn() {
        const auto end = m_order;
        while (!m_pending.empty()) {
            const auto first = m_pending.begin();
            if (first->first.first > m_now || first->first.second >= end) {
                return;
            }
            const auto work = std::move(m_pending.extract(first).mapped());
            work();
        }
    }

    /// Turns until nothing is due.
    void run() { advance(0); }

    /// Moves the clock on, and runs everything that falls due on the way at its own time.
    void advance(double seconds) {
        const double end = m_now + seconds;
        while (!m_pending.empty() && m_pending.begin()->first.first <= end) {
            const auto entry = m_pending.extract(m_pending.begin());
            m_now = entry.key().first;
            entry.mapped()();
        }
        m_now = end;
    }

private:
    double m_now = 1000;
    std::uint64_t m_order = 0;
    /// By deadline, then by order of arrival.
    std::map<std::pair<double, std::uint64_t>, Work> m_pending;
};

} // namespace quillon::test
