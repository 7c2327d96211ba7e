#pragma once

#include "foundation/Geometry.h"
#include "model/CodablePoint.h"
#include "model/DrawingStroke.h"
#include "platform/Path.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <span>

/// The geometry of strokes: which path a stroke has, and where its ink falls.
/// All values are points in view coordinates.
namespace quillon {

/// The smallest rectangle over all of the points; all zero when there is none.
CGRect pointBounds(std::span<const CodablePoint> points);

/// A freehand polyline as curve segments. Two points make one straight segment, `count` points make
/// `count - 2` cubic ones, fewer make none.
class FreehandCurve {
public:
    struct Segment {
        CGPoint start;
        CGPoint control1;
        CGPoint control2;
        CGPoint end;

        CGRect bounds() const;

        friend bool operator==(const Segment&, const Segment&) = default;
    };

    explicit FreehandCurve(std::span<const CodablePoint> points)
        : m_points(points) {}

    std::size_t segmentCount() const {
        return m_points.size() < 2 ? 0 : m_points.size() == 2 ? 1 : m_points.size() - 2;
    }
    bool isStraight() const { return m_points.size() == 2; }

    /// Segment `index`, which for a Catmull-Rom spline turned into Bézier form runs from p1 to p2
    /// with the control points p1 + (p2 - p0) / 6 and p2 - (p3 - p1) / 6. The first one starts at
    /// the very first point all the same, and the last one takes p2 for the missing p3.
    Segment segment(std::size_t index) const;

    /// Appends segments `first` to `last`, the latter not included, as one run.
    void addSegments(std::size_t first, std::size_t last, Path& path) const;

private:
    CGPoint point(std::size_t index) const { return m_points[index].cgPoint(); }

    std::span<const CodablePoint> m_points;
};

/// The outline of a shape that is stroked: never filled, whatever its kind. `startPoint` and
/// `endPoint` fall back to the corners of `rect` for a line, and to the middles of its left and
/// right edges for an arrow.
Path shapePath(ShapeType type, const CGRect& rect, std::optional<CGPoint> startPoint,
               std::optional<CGPoint> endPoint);

/// What a stroke is painted as: a shape, a text, or a freehand path.
enum class StrokeForm { shape, text, freehand };
StrokeForm formOf(const DrawingStroke& stroke);

/// How far the ink of a line reaches beyond its path, antialiasing included.
inline CGFloat inkReach(CGFloat lineWidth) {
    return std::max(lineWidth, 0.0) / 2 + 1;
}

/// Takes the places of ink, in small pieces that follow its path and may overlap.
using InkVisitor = std::function<void(const CGRect&)>;

/// Tells where the ink of a path falls.
void visitInkOfPath(const Path& path, CGFloat lineWidth, const InkVisitor& visit);
/// The same for segments `first` to `last` of a freehand curve, the latter not included.
void visitInkOfSegments(const FreehandCurve& curve, std::size_t first, std::size_t last,
                        CGFloat lineWidth, const InkVisitor& visit);

} // namespace quillon
