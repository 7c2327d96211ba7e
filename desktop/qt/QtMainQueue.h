#pragma once

#include "platform/MainQueue.h"

#include <QBasicTimer>
#include <QObject>

#include <cstdint>
#include <map>
#include <utility>

namespace quillon::desktop {

/// The main queue on Qt's event loop, for the thread that made it.
///
/// Work for the next turn travels as a posted event, so that it keeps its place among everything
/// else that was posted. Delayed work waits in a list ordered by deadline, for which a single
/// one-shot timer is set; with nothing waiting, nothing ticks.
class QtMainQueue : public QObject, public MainQueue {
public:
    void async(Work work) override;
    void asyncAfter(double seconds, Work work) override;
    double now() const override;
    void clear() override;

protected:
    bool event(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void setTimerForFirstDeadline();

    /// Work for the next turn that waits.
    int m_posted = 0;
    std::uint64_t m_order = 0;
    /// By deadline, then by order of arrival.
    std::map<std::pair<double, std::uint64_t>, Work> m_delayed;
    QBasicTimer m_timer;
};

} // namespace quillon::desktop
