#pragma once

#include "annotation/PaintArea.h"
#include "annotation/SegmentIndex.h"
#include "annotation/StrokeList.h"
#include "model/DrawingStroke.h"
#include "platform/Damage.h"
#include "platform/Graphics.h"
#include "platform/GraphicsContext.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

/// How strokes become a picture. Nothing here changes any state. What lies outside of the area to
/// be painted is left out, which changes no pixel inside of it. Without an area given it is that of
/// the context's clip bounds.
namespace quillon {

/// Strokes that have left the list and are still fading, each with its opacity from 0 to 1. They
/// keep their place in the order of drawing.
using FadingStrokes = std::vector<std::pair<StrokeRef, double>>;

/// Paints all finished strokes: first all that are not highlighter strokes, in order, then the
/// highlighter strokes, so that these always lie on top.
void drawStrokes(GraphicsContext& context, const StrokeList& strokes, Graphics& graphics,
                 const FadingStrokes& fading = {});

/// Paints one stroke in a layer of its own. The blend mode holds inside that layer, not where the
/// layer is received. `segments` belongs to the stroke's points. Answers what it took, in segments
/// of a freehand stroke.
std::size_t drawStroke(GraphicsContext& context, const DrawingStroke& stroke, BlendMode blendMode,
                       const SegmentIndex& segments);
std::size_t drawStroke(GraphicsContext& context, const DrawingStroke& stroke, BlendMode blendMode,
                       const SegmentIndex& segments, const PaintArea& area);

/// The blend mode that a tool's strokes have inside their layer.
BlendMode blendModeOf(DrawingTool tool);

void drawShape(GraphicsContext& context, ShapeType type, const CGRect& rect, const Color& color,
               CGFloat lineWidth, std::optional<CGPoint> startPoint,
               std::optional<CGPoint> endPoint);

/// With the top leading corner at `at`.
void drawText(GraphicsContext& context, const std::string& text, CGPoint at, const Color& color,
              CGFloat fontSize);

/// Paints a freehand line through its points: nothing for fewer than two, a straight line for two,
/// else the curve of `FreehandCurve`, with round caps and joins. Answers how many segments it drew.
std::size_t drawPath(GraphicsContext& context, std::span<const CodablePoint> points,
                     const Color& color, CGFloat lineWidth, const SegmentIndex& segments,
                     const PaintArea& area);

/// The colour in which a stroke is painted: its own, but translucent white for the eraser.
Color paintColor(const DrawingStroke& stroke);

/// Tells where the ink of a stroke falls; of a freehand stroke, only what segment `firstSegment`
/// and later ones bring.
void visitInk(const DrawingStroke& stroke, std::size_t firstSegment, Graphics& graphics,
              const InkVisitor& visit);
/// The same as damage.
Damage strokeInk(const DrawingStroke& stroke, std::size_t firstSegment, Graphics& graphics);
/// One rectangle outside of which no ink falls.
CGRect strokeInkBounds(const DrawingStroke& stroke, const SegmentIndex& segments,
                       Graphics& graphics);

} // namespace quillon
