#pragma once

#include "foundation/Easing.h"

namespace quillon {

/// The opacity of something that fades in and out, as a function of time. Turning round in the
/// middle goes on from where it is. Times are seconds on one steady clock.
class FadeTransition {
public:
    FadeTransition(double duration, bool isVisible)
        : m_duration(duration)
        , m_isVisible(isVisible)
        , m_from(isVisible ? 1 : 0) {}

    void setVisible(bool isVisible, double now) {
        if (isVisible != m_isVisible) {
            m_from = opacity(now);
            m_isVisible = isVisible;
            m_start = now;
        }
    }

    double opacity(double now) const {
        const double target = m_isVisible ? 1 : 0;
        return m_from + (target - m_from) * TimingCurve::easeInOut.progressAt(progress(now));
    }

    bool isRunning(double now) const {
        return m_from != (m_isVisible ? 1 : 0) && progress(now) < 1;
    }

private:
    double progress(double now) const { return (now - m_start) / m_duration; }

    double m_duration;
    bool m_isVisible;
    double m_from;
    double m_start = 0;
};

} // namespace quillon
