#pragma once

namespace quillon {

/// A damped spring that carries a value to its target.
///
/// The motion is that of a harmonic oscillator of unit mass, x'' = -w² (x - target) - 2 d w x',
/// with w = 2 pi / response and the damping fraction d below 1, solved in closed form. A new target
/// keeps the place and the speed.
class Spring {
public:
    /// `response` in seconds: the period of the spring if it were not damped.
    Spring(double response, double dampingFraction, double value);

    double target() const { return m_target; }
    /// Heads for `target` from where the value is at `now`. Seconds.
    void setTarget(double target, double now);

    double valueAt(double now) const;
    /// True once the value stays this close to its target that nobody sees a difference.
    bool isAtRest(double now) const;

private:
    struct Motion {
        double offset;
        double speed;
    };
    /// The offset from the target, and how fast it changes.
    Motion motionAt(double now) const;

    double m_naturalFrequency;
    double m_dampingFraction;
    double m_target;
    double m_start = 0;
    Motion m_initial{0, 0};
};

} // namespace quillon
