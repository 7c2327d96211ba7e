#pragma once

#include "annotation/PaintArea.h"
#include "annotation/StrokePath.h"
#include "foundation/Geometry.h"
#include "model/CodablePoint.h"

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

namespace quillon {

/// Finds the segments of a freehand curve that leave ink in an area without looking at each of
/// them: the bounds of every run of 64 are kept. It follows a curve that grows at its end.
class SegmentIndex {
public:
    static constexpr std::size_t runLength = 64;

    SegmentIndex() = default;
    explicit SegmentIndex(std::span<const CodablePoint> points) { extend(points); }

    /// Brings the index up to date with `points`, of which only the end has grown since the last
    /// call. Answers the first segment that is new or changed its form.
    std::size_t extend(std::span<const CodablePoint> points);

    /// The bounds of all segments, control points included; all zero when there is none.
    CGRect bounds() const;

    /// Calls `body` with the first and past-the-end number of each run of neighbouring segments
    /// whose bounds, grown by `reach`, meet `area`.
    template <typename Body>
    void forEachRunNear(const FreehandCurve& curve, const PaintArea& area, CGFloat reach,
                        Body&& body) const {
        std::size_t first = 0;
        std::size_t past = 0;
        for (std::size_t run = 0; run < m_runs.size(); ++run) {
            if (!area.meets(m_runs[run].outset(reach))) {
                continue;
            }
            const std::size_t end = std::min((run + 1) * runLength, m_segmentCount);
            for (std::size_t index = run * runLength; index < end; ++index) {
                if (!area.meets(curve.segment(index).bounds().outset(reach))) {
                    continue;
                }
                if (index != past && past > first) {
                    body(first, past);
                }
                if (index != past || past == first) {
                    first = index;
                }
                past = index + 1;
            }
        }
        if (past > first) {
            body(first, past);
        }
    }

private:
    std::vector<CGRect> m_runs;
    std::size_t m_segmentCount = 0;
    std::size_t m_pointCount = 0;
};

} // namespace quillon
