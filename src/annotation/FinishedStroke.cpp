#include "annotation/FinishedStroke.h"

#include "annotation/StrokeRenderer.h"

#include <algorithm>

namespace quillon {

FinishedStroke::FinishedStroke(DrawingStroke stroke, std::uint64_t order)
    : m_stroke(std::move(stroke))
    , m_order(order) {
    if (formOf(m_stroke) == StrokeForm::freehand) {
        m_segments.extend(m_stroke.points);
    }
    if (!m_stroke.points.empty()) {
        const auto& points = m_stroke.points;
        const auto [left, right] = std::ranges::minmax(points, {}, &CodablePoint::x);
        const auto [top, bottom] = std::ranges::minmax(points, {}, &CodablePoint::y);
        m_pointBounds = {left.x, top.y, right.x - left.x, bottom.y - top.y};
    }
}

const CGRect& FinishedStroke::inkBounds(Graphics& graphics) const {
    if (!m_inkBounds) {
        m_inkBounds = strokeInkBounds(m_stroke, m_segments, graphics);
    }
    return *m_inkBounds;
}

Damage FinishedStroke::ink(Graphics& graphics) const {
    return strokeInk(m_stroke, 0, graphics);
}

} // namespace quillon
