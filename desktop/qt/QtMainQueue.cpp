#include "desktop/qt/QtMainQueue.h"

#include <QCoreApplication>
#include <QEvent>
#include <QThread>
#include <QTimerEvent>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>

namespace quillon::desktop {

namespace {

class WorkEvent : public QEvent {
public:
    explicit WorkEvent(MainQueue::Work newWork)
        : QEvent(kind())
        , work(std::move(newWork)) {}

    static Type kind() {
        static const auto registered = static_cast<Type>(registerEventType());
        return registered;
    }

    MainQueue::Work work;
};

/// Rounded up, so that the timer never fires before the deadline.
int wholeMilliseconds(double seconds) {
    constexpr double longest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::ceil(seconds * 1000), 0.0, longest));
}

} // namespace

void QtMainQueue::async(Work work) {
    ++m_posted;
    QCoreApplication::postEvent(this, new WorkEvent(std::move(work)));
}

void QtMainQueue::asyncAfter(double seconds, Work work) {
    if (!(seconds > 0)) {
        async(std::move(work));
        return;
    }
    const auto entry = m_delayed.emplace(std::pair(now() + seconds, m_order++), std::move(work));
    if (entry.first == m_delayed.begin()) {
        setTimerForFirstDeadline();
    }
}

double QtMainQueue::now() const {
    const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(sinceStart).count();
}

void QtMainQueue::clear() {
    m_timer.stop();
    m_delayed.clear();
    QCoreApplication::removePostedEvents(this, WorkEvent::kind());
    m_posted = 0;
}

bool QtMainQueue::event(QEvent* event) {
    if (event->type() == WorkEvent::kind()) {
        --m_posted;
        static_cast<WorkEvent*>(event)->work();
        if (m_posted > 0) {
            // Of a chain of pieces the scheduler sees one long run, behind which the thread that
            // reads the input, or the server itself, would wait for milliseconds.
            QThread::yieldCurrentThread();
        }
        return true;
    }
    return QObject::event(event);
}

void QtMainQueue::timerEvent(QTimerEvent* event) {
    if (event->timerId() != m_timer.timerId()) {
        return;
    }
    m_timer.stop();
    // What is due is posted and not run here: each piece then has a turn of its own, and one that
    // opens a loop inside its turn does not hold up the next.
    const double present = now();
    while (!m_delayed.empty() && m_delayed.begin()->first.first <= present) {
        async(std::move(m_delayed.extract(m_delayed.begin()).mapped()));
    }
    setTimerForFirstDeadline();
}

void QtMainQueue::setTimerForFirstDeadline() {
    if (!m_delayed.empty()) {
        const double remaining = m_delayed.begin()->first.first - now();
        m_timer.start(wholeMilliseconds(remaining), Qt::PreciseTimer, this);
    }
}

} // namespace quillon::desktop
