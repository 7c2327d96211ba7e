#include "annotation/FinishedStroke.h"

#include "annotation/StrokeRenderer.h"

#include <vector>

namespace quillon {

namespace {

bool differInPointsAlone(const DrawingStroke& a, const DrawingStroke& b) {
    const auto isCurve = [](const DrawingStroke& stroke) {
        return formOf(stroke) == StrokeForm::freehand && stroke.points.size() > 2;
    };
    return isCurve(a) && isCurve(b) && a.tool == b.tool && a.color == b.color &&
           a.lineWidth == b.lineWidth;
}

} // namespace

FinishedStroke::FinishedStroke(DrawingStroke stroke, std::uint64_t order)
    : m_stroke(std::move(stroke))
    , m_order(order)
    , m_pointBounds(quillon::pointBounds(m_stroke.points)) {
    if (formOf(m_stroke) == StrokeForm::freehand) {
        m_segments.extend(m_stroke.points);
    }
}

const CGRect& FinishedStroke::inkBounds(Graphics& graphics) const {
    if (!m_inkBounds) {
        m_inkBounds = strokeInkBounds(m_stroke, m_segments, graphics);
    }
    return *m_inkBounds;
}

void FinishedStroke::visitInk(Graphics& graphics, const InkVisitor& visit) const {
    quillon::visitInk(m_stroke, 0, graphics, visit);
}

void visitChangedInk(const FinishedStroke& before, const FinishedStroke& after, Graphics& graphics,
                     const InkVisitor& visit) {
    if (!differInPointsAlone(before.stroke(), after.stroke())) {
        before.visitInk(graphics, visit);
        after.visitInk(graphics, visit);
        return;
    }
    const bool hasGrown = before.stroke().points.size() < after.stroke().points.size();
    const auto& longer = hasGrown ? after.stroke() : before.stroke();
    const auto& shorter = hasGrown ? before.stroke() : after.stroke();
    const CGFloat lineWidth = longer.lineWidth;
    const FreehandCurve longerCurve(longer.points);
    const FreehandCurve shorterCurve(shorter.points);

    // The shorter stroke has points of the longer one, in the same order, so one walk finds which
    // segment may stand in both: the one that ends in the same point. Where a segment that stands
    // in both meets one that does not, their round join lies in the ink of the latter.
    std::vector<bool> isInBoth(shorterCurve.segmentCount());
    std::size_t next = 0;
    for (std::size_t index = 0; index < longer.points.size(); ++index) {
        const bool isKept =
            next < shorter.points.size() && longer.points[index] == shorter.points[next];
        next += isKept ? 1 : 0;
        if (index < 2) {
            continue;
        }
        const std::size_t segment = index - 2;
        if (isKept && next > 2 && longerCurve.segment(segment) == shorterCurve.segment(next - 3)) {
            isInBoth[next - 3] = true;
        } else {
            visitInkOfSegments(longerCurve, segment, segment + 1, lineWidth, visit);
        }
    }
    for (std::size_t segment = 0; segment < isInBoth.size(); ++segment) {
        if (!isInBoth[segment]) {
            visitInkOfSegments(shorterCurve, segment, segment + 1, lineWidth, visit);
        }
    }
}

} // namespace quillon
