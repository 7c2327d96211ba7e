#pragma once

#include "annotation/StrokeList.h"
#include "foundation/Geometry.h"
#include "model/DrawingStroke.h"

namespace quillon {

/// Takes out of `strokes` what a finished eraser stroke touched. Its recorded points are tested,
/// not the lines between them, each with a reach of its own:
/// - a shape goes as a whole when a point lies in its bounding rectangle grown by the eraser's
///   width W;
/// - a text goes as a whole when a point is nearer than W + 20 to its anchor;
/// - of a freehand stroke, the first point of every segment that is nearer than W / 2 goes; the
///   rest stays one stroke, joined across the gap, and goes too when one point or none is left.
void processEraser(const DrawingStroke& eraserStroke, StrokeList& strokes);

/// The distance from a point to the nearest place on a segment, in points.
CGFloat distanceFromPointToSegment(CGPoint point, CGPoint segmentStart, CGPoint segmentEnd);

} // namespace quillon
