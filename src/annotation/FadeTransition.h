#pragma once

#include "foundation/AnimatedValue.h"

namespace quillon {

/// The opacity of something that fades in and out, as a function of time. Turning round in the
/// middle goes on from where it is. Times are seconds on one steady clock.
class FadeTransition {
public:
    FadeTransition(double duration, bool isVisible)
        : m_duration(duration)
        , m_isVisible(isVisible)
        , m_opacity(isVisible ? 1 : 0) {}

    void setVisible(bool isVisible, double now) {
        if (isVisible != m_isVisible) {
            m_isVisible = isVisible;
            m_opacity.animate(isVisible ? 1 : 0, TimingCurve::easeInOut, m_duration, now);
        }
    }

    double opacity(double now) const { return m_opacity.at(now); }
    bool isRunning(double now) const { return m_opacity.isRunning(now); }

private:
    double m_duration;
    bool m_isVisible;
    AnimatedValue m_opacity;
};

} // namespace quillon
