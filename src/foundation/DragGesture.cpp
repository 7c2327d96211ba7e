#include "foundation/DragGesture.h"

namespace quillon {

std::optional<DragValue> DragGesture::pressed(CGPoint location) {
    m_start = location;
    m_hasBegun = m_minimumDistance <= 0;
    return m_hasBegun ? std::optional(valueAt(location)) : std::nullopt;
}

std::optional<DragValue> DragGesture::moved(CGPoint location) {
    if (!m_start) {
        return std::nullopt;
    }
    m_hasBegun = m_hasBegun || distance(*m_start, location) >= m_minimumDistance;
    return m_hasBegun ? std::optional(valueAt(location)) : std::nullopt;
}

std::optional<DragValue> DragGesture::released(CGPoint location) {
    if (!m_start) {
        return std::nullopt;
    }
    const auto end = m_hasBegun ? std::optional(valueAt(location)) : std::nullopt;
    m_start.reset();
    m_hasBegun = false;
    return end;
}

DragValue DragGesture::valueAt(CGPoint location) const {
    return {location, {location.x - m_start->x, location.y - m_start->y}};
}

} // namespace quillon
