#pragma once

#include "foundation/Geometry.h"

#include <optional>

namespace quillon {

/// One report of a drag. All values are points in the coordinates in which the drag is followed.
struct DragValue {
    CGPoint location;
    CGSize translation;
};

/// Turns press, move and release into the changes and the end of a drag.
///
/// A drag with a minimum distance of 0 reports its first change at the press itself. With a larger
/// one nothing is reported until the pointer has gone that far from the press; from then on every
/// move is. A drag that never began has no end.
class DragGesture {
public:
    static constexpr CGFloat defaultMinimumDistance = 10;

    explicit DragGesture(CGFloat minimumDistance = defaultMinimumDistance)
        : m_minimumDistance(minimumDistance) {}

    /// Each answers the report that the event makes due, if any.
    std::optional<DragValue> pressed(CGPoint location);
    std::optional<DragValue> moved(CGPoint location);
    std::optional<DragValue> released(CGPoint location);

    bool isTracking() const { return m_start.has_value(); }

private:
    DragValue valueAt(CGPoint location) const;

    CGFloat m_minimumDistance;
    std::optional<CGPoint> m_start;
    bool m_hasBegun = false;
};

} // namespace quillon
