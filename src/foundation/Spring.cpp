#include "foundation/Spring.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quillon {

namespace {

/// Of the unit in which the value counts.
constexpr double kImperceptible = 0.0005;

} // namespace

Spring::Spring(double response, double dampingFraction, double value)
    : m_naturalFrequency(2 * std::numbers::pi / response)
    , m_dampingFraction(dampingFraction)
    , m_target(value) {}

void Spring::setTarget(double target, double now) {
    Motion motion = motionAt(now);
    motion.offset += m_target - target;
    m_initial = motion;
    m_target = target;
    m_start = now;
}

double Spring::valueAt(double now) const {
    return m_target + motionAt(now).offset;
}

bool Spring::isAtRest(double now) const {
    const Motion motion = motionAt(now);
    return std::abs(motion.offset) < kImperceptible &&
           std::abs(motion.speed) < kImperceptible * m_naturalFrequency;
}

Spring::Motion Spring::motionAt(double now) const {
    const double time = std::max(now - m_start, 0.0);
    const double decay = m_dampingFraction * m_naturalFrequency;
    const double frequency =
        m_naturalFrequency * std::sqrt(1 - m_dampingFraction * m_dampingFraction);
    const double inPhase = m_initial.offset;
    const double quadrature = (m_initial.speed + decay * m_initial.offset) / frequency;

    const double envelope = std::exp(-decay * time);
    const double cosine = std::cos(frequency * time);
    const double sine = std::sin(frequency * time);
    const double offset = envelope * (inPhase * cosine + quadrature * sine);
    const double speed =
        envelope * frequency * (quadrature * cosine - inPhase * sine) - decay * offset;
    return {offset, speed};
}

} // namespace quillon
