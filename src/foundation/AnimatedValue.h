#pragma once

#include "foundation/Easing.h"

namespace quillon {

/// A number that can be seen on its way from one value to another. Times are seconds on one steady
/// clock.
class AnimatedValue {
public:
    explicit AnimatedValue(double value)
        : m_from(value)
        , m_to(value) {}

    /// Sets out from where it is seen at `now`.
    void animate(double to, const TimingCurve& curve, double duration, double now) {
        m_from = at(now);
        m_to = to;
        m_curve = curve;
        m_start = now;
        m_duration = duration;
    }

    double at(double now) const {
        return m_from + (m_to - m_from) * m_curve.progressAt(elapsed(now));
    }

    bool isRunning(double now) const { return m_from != m_to && elapsed(now) < 1; }

private:
    double elapsed(double now) const { return m_duration > 0 ? (now - m_start) / m_duration : 1; }

    double m_from;
    double m_to;
    TimingCurve m_curve = TimingCurve::linear;
    double m_start = 0;
    double m_duration = 0;
};

} // namespace quillon
