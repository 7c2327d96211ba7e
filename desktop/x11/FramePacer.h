#pragma once

#include <algorithm>

namespace quillon::desktop {

/// Says when the next frame is due, so that two dues never lie closer than an interval. A frame
/// that came late does not put off the next one: the pace is that of the dues.
class FramePacer {
public:
    explicit FramePacer(double interval)
        : m_interval(interval) {}

    /// Books the next frame, which is wanted from now on: seconds to wait for it.
    double book(double now) {
        const double due = std::max(m_earliestNext, now);
        m_earliestNext = due + m_interval;
        return due - now;
    }

private:
    double m_interval;
    double m_earliestNext = 0;
};

} // namespace quillon::desktop
