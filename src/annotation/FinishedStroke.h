#pragma once

#include "annotation/SegmentIndex.h"
#include "model/DrawingStroke.h"
#include "platform/Graphics.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace quillon {

/// A stroke that no longer changes, with what painting and erasing want to know of it. Lists and
/// snapshots share it; an edit makes another one.
class FinishedStroke {
public:
    /// `order` grows from stroke to stroke in order of completion; a stroke that replaces another
    /// takes over its order.
    FinishedStroke(DrawingStroke stroke, std::uint64_t order);

    const DrawingStroke& stroke() const { return m_stroke; }
    std::uint64_t order() const { return m_order; }

    /// The segments of a freehand stroke; of no use for the other forms.
    const SegmentIndex& segments() const { return m_segments; }

    /// The smallest rectangle over all of `points`; all zero when there is none.
    const CGRect& pointBounds() const { return m_pointBounds; }

    /// No ink falls outside of this.
    const CGRect& inkBounds(Graphics& graphics) const;

    /// Tells where the ink falls.
    void visitInk(Graphics& graphics, const InkVisitor& visit) const;

private:
    DrawingStroke m_stroke;
    std::uint64_t m_order;
    SegmentIndex m_segments;
    CGRect m_pointBounds;
    /// Measured once, at the first need.
    mutable std::optional<CGRect> m_inkBounds;
};

using StrokeRef = std::shared_ptr<const FinishedStroke>;

/// Tells where the picture changes when `after` comes into the place of `before`: of a freehand
/// stroke that lost points, only where they were.
void visitChangedInk(const FinishedStroke& before, const FinishedStroke& after, Graphics& graphics,
                     const InkVisitor& visit);

} // namespace quillon
