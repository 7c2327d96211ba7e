#pragma once

#include "annotation/DirtyCells.h"
#include "foundation/Geometry.h"

namespace quillon {

/// The part of a picture that is to be painted: a rectangle, or the dirty cells in it. What does
/// not meet it can be left out.
class PaintArea {
public:
    explicit PaintArea(const CGRect& rect)
        : m_rect(rect) {}
    /// `cells` must outlive this.
    PaintArea(const CGRect& rect, const DirtyCells& cells)
        : m_rect(rect)
        , m_cells(&cells) {}

    /// False only when `rect` shares no area with it.
    bool meets(const CGRect& rect) const {
        return m_rect.intersects(rect) && (!m_cells || m_cells->meets(rect));
    }

private:
    CGRect m_rect;
    const DirtyCells* m_cells = nullptr;
};

} // namespace quillon
