#include "support/HandTurnedQueue.h"

#include <algorithm>
#include <utility>

namespace quillon::test {

void HandTurnedQueue::async(Work work) {
    asyncAfter(0, std::move(work));
}

void HandTurnedQueue::asyncAfter(double seconds, Work work) {
    m_pending.emplace(std::pair(m_now + (seconds > 0 ? seconds : 0), m_order++), std::move(work));
}

void HandTurnedQueue::clear() {
    m_pending.clear();
}

bool HandTurnedQueue::isIdle() const {
    return m_pending.empty();
}

void HandTurnedQueue::turn() {
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

void HandTurnedQueue::run() {
    advance(0);
}

void HandTurnedQueue::advance(double seconds) {
    const double end = m_now + seconds;
    while (!m_pending.empty() && m_pending.begin()->first.first <= end) {
        const auto entry = m_pending.extract(m_pending.begin());
        m_now = std::max(m_now, entry.key().first);
        entry.mapped()();
    }
    m_now = end;
}

} // namespace quillon::test
