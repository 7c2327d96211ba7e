#include "foundation/Easing.h"

namespace quillon {

namespace {

/// One coordinate of the curve whose end points are 0 and 1.
double bezier(double control1, double control2, double t) {
    const double u = 1 - t;
    return 3 * u * u * t * control1 + 3 * u * t * t * control2 + t * t * t;
}

} // namespace

double TimingCurve::progressAt(double time) const {
    if (time <= 0) {
        return 0;
    }
    if (time >= 1) {
        return 1;
    }
    // x grows with t for control points between 0 and 1, so halving finds the one t with x = time.
    // Forty halvings leave less than a double's rounding.
    double low = 0;
    double high = 1;
    for (int step = 0; step < 40; ++step) {
        const double middle = (low + high) / 2;
        (bezier(m_x1, m_x2, middle) < time ? low : high) = middle;
    }
    return bezier(m_y1, m_y2, (low + high) / 2);
}

} // namespace quillon
