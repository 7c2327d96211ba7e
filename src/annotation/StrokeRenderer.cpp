#include "annotation/StrokeRenderer.h"

#include "annotation/StrokeWalk.h"

namespace quillon {

namespace {

/// To draw a shape or a text takes about as long as so many segments.
constexpr std::size_t kSegmentsOfOtherForms = 64;

StrokeStyle roundStyle(CGFloat lineWidth) {
    return {lineWidth, LineCap::round, LineJoin::round};
}

Text textOf(const DrawingStroke& stroke) {
    return {*stroke.textContent, *stroke.fontSize, stroke.viewColor()};
}

Path shapePathOf(const DrawingStroke& stroke) {
    return shapePath(*stroke.shapeType, *stroke.cgShapeRect(), stroke.cgShapeStartPoint(),
                     stroke.cgShapeEndPoint());
}

/// Where the ink of a text falls in the view. Its antialiasing reaches one point further.
CGRect textInk(const DrawingStroke& stroke, Graphics& graphics) {
    const CGRect ink = graphics.inkBounds(textOf(stroke)).outset(1);
    const CGPoint at = stroke.points.front().cgPoint();
    return {ink.x + at.x, ink.y + at.y, ink.width, ink.height};
}

} // namespace

void drawStrokes(GraphicsContext& context, const StrokeList& strokes, Graphics& graphics,
                 const FadingStrokes& fading) {
    StrokeWalk(strokes, fading).goOn(context, graphics, PaintArea(context.clipBounds()), {});
}

std::size_t drawStroke(GraphicsContext& context, const DrawingStroke& stroke, BlendMode blendMode,
                       const SegmentIndex& segments) {
    return drawStroke(context, stroke, blendMode, segments, PaintArea(context.clipBounds()));
}

std::size_t drawStroke(GraphicsContext& context, const DrawingStroke& stroke, BlendMode blendMode,
                       const SegmentIndex& segments, const PaintArea& area) {
    const Color color = paintColor(stroke);
    std::size_t drawn = kSegmentsOfOtherForms;
    context.drawLayer([&](GraphicsContext& layer) {
        layer.setBlendMode(blendMode);
        switch (formOf(stroke)) {
        case StrokeForm::shape:
            drawShape(layer, *stroke.shapeType, *stroke.cgShapeRect(), color, stroke.lineWidth,
                      stroke.cgShapeStartPoint(), stroke.cgShapeEndPoint());
            break;
        case StrokeForm::text:
            drawText(layer, *stroke.textContent, stroke.points.front().cgPoint(), color,
                     *stroke.fontSize);
            break;
        case StrokeForm::freehand:
            drawn = drawPath(layer, stroke.points, color, stroke.lineWidth, segments, area);
            break;
        }
    });
    return drawn;
}

BlendMode blendModeOf(DrawingTool tool) {
    return tool == DrawingTool::highlighter ? BlendMode::plusLighter : BlendMode::normal;
}

void drawShape(GraphicsContext& context, ShapeType type, const CGRect& rect, const Color& color,
               CGFloat lineWidth, std::optional<CGPoint> startPoint,
               std::optional<CGPoint> endPoint) {
    context.stroke(shapePath(type, rect, startPoint, endPoint), color, roundStyle(lineWidth));
}

void drawText(GraphicsContext& context, const std::string& text, CGPoint at, const Color& color,
              CGFloat fontSize) {
    context.drawText({text, fontSize, color}, at, Anchor::topLeading);
}

std::size_t drawPath(GraphicsContext& context, std::span<const CodablePoint> points,
                     const Color& color, CGFloat lineWidth, const SegmentIndex& segments,
                     const PaintArea& area) {
    const FreehandCurve curve(points);
    Path path;
    std::size_t drawn = 0;
    segments.forEachRunNear(curve, area, inkReach(lineWidth),
                            [&](std::size_t first, std::size_t past) {
                                curve.addSegments(first, past, path);
                                drawn += past - first;
                            });
    if (!path.isEmpty()) {
        context.stroke(path, color, roundStyle(lineWidth));
    }
    return drawn;
}

Color paintColor(const DrawingStroke& stroke) {
    return stroke.tool == DrawingTool::eraser ? Color::white.opacity(0.5) : stroke.viewColor();
}

void visitInk(const DrawingStroke& stroke, std::size_t firstSegment, Graphics& graphics,
              const InkVisitor& visit) {
    switch (formOf(stroke)) {
    case StrokeForm::shape:
        visitInkOfPath(shapePathOf(stroke), stroke.lineWidth, visit);
        break;
    case StrokeForm::text:
        visit(textInk(stroke, graphics));
        break;
    case StrokeForm::freehand: {
        const FreehandCurve curve(stroke.points);
        visitInkOfSegments(curve, firstSegment, curve.segmentCount(), stroke.lineWidth, visit);
        break;
    }
    }
}

Damage strokeInk(const DrawingStroke& stroke, std::size_t firstSegment, Graphics& graphics) {
    Damage ink;
    visitInk(stroke, firstSegment, graphics, [&](const CGRect& piece) { ink.add(piece); });
    return ink;
}

CGRect strokeInkBounds(const DrawingStroke& stroke, const SegmentIndex& segments,
                       Graphics& graphics) {
    switch (formOf(stroke)) {
    case StrokeForm::shape:
        return shapePathOf(stroke).controlPointBounds().outset(inkReach(stroke.lineWidth));
    case StrokeForm::text:
        return textInk(stroke, graphics);
    case StrokeForm::freehand:
        break;
    }
    return stroke.points.size() < 2 ? CGRect{}
                                    : segments.bounds().outset(inkReach(stroke.lineWidth));
}

} // namespace quillon
