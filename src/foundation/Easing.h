#pragma once

namespace quillon {

/// A timing curve: the cubic Bézier from (0, 0) to (1, 1) with two control points, read as progress
/// over time.
class TimingCurve {
public:
    constexpr TimingCurve(double x1, double y1, double x2, double y2)
        : m_x1(x1)
        , m_y1(y1)
        , m_x2(x2)
        , m_y2(y2) {}

    /// The progress at `time`, both from 0 to 1; outside of that range it stays at its ends.
    double progressAt(double time) const;

    static const TimingCurve linear, easeIn, easeOut, easeInOut;

private:
    double m_x1, m_y1, m_x2, m_y2;
};

inline constexpr TimingCurve TimingCurve::linear{0, 0, 1, 1};
inline constexpr TimingCurve TimingCurve::easeIn{0.42, 0, 1, 1};
inline constexpr TimingCurve TimingCurve::easeOut{0, 0, 0.58, 1};
inline constexpr TimingCurve TimingCurve::easeInOut{0.42, 0, 0.58, 1};

} // namespace quillon
