#include "annotation/SegmentIndex.h"

namespace quillon {

std::size_t SegmentIndex::extend(std::span<const CodablePoint> points) {
    const FreehandCurve curve(points);
    // The last segment of the shorter curve lacked its p3 and bends anew; up to three points the
    // curve is another one altogether.
    const std::size_t firstChanged =
        m_pointCount <= 3 || m_segmentCount == 0 ? 0 : m_segmentCount - 1;
    if (points.size() == m_pointCount) {
        return m_segmentCount;
    }
    m_pointCount = points.size();
    m_segmentCount = curve.segmentCount();
    for (std::size_t index = firstChanged; index < m_segmentCount; ++index) {
        const CGRect bounds = curve.segment(index).bounds();
        const std::size_t run = index / runLength;
        if (run == m_runs.size()) {
            m_runs.push_back(bounds);
        } else {
            m_runs[run] = m_runs[run].unite(bounds);
        }
    }
    return firstChanged;
}

CGRect SegmentIndex::bounds() const {
    if (m_runs.empty()) {
        return {};
    }
    CGRect bounds = m_runs.front();
    for (const auto& run : m_runs) {
        bounds = bounds.unite(run);
    }
    return bounds;
}

} // namespace quillon
