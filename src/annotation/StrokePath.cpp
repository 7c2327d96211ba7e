#include "annotation/StrokePath.h"

#include <algorithm>
#include <numbers>

namespace quillon {

namespace {

CGRect boundsOf(std::initializer_list<CGPoint> points) {
    CGPoint low = *points.begin();
    CGPoint high = low;
    for (const auto& point : points) {
        low = {std::min(low.x, point.x), std::min(low.y, point.y)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y)};
    }
    return rectBetween(low, high);
}

/// Tells the bounds of a curve in pieces no longer than this, so that the inside of a large shape
/// stays untouched.
constexpr CGFloat kPieceLength = 160;

void visitPieces(const FreehandCurve::Segment& curve, CGFloat reach, int depth,
                 const InkVisitor& visit) {
    const CGRect bounds = curve.bounds();
    if (depth == 0 || std::min(bounds.width, bounds.height) <= reach ||
        std::max(bounds.width, bounds.height) <= kPieceLength) {
        visit(bounds.outset(reach));
        return;
    }
    // De Casteljau's division at one half.
    const CGPoint a = (curve.start + curve.control1) / 2;
    const CGPoint middle = (curve.control1 + curve.control2) / 2;
    const CGPoint d = (curve.control2 + curve.end) / 2;
    const CGPoint b = (a + middle) / 2;
    const CGPoint c = (middle + d) / 2;
    const CGPoint split = (b + c) / 2;
    visitPieces({curve.start, a, b, split}, reach, depth - 1, visit);
    visitPieces({split, c, d, curve.end}, reach, depth - 1, visit);
}

constexpr int kDeepestDivision = 4;

void addArrowHead(CGPoint start, CGPoint end, Path& path) {
    constexpr CGFloat length = 15;
    constexpr CGFloat halfAngle = std::numbers::pi / 6;
    const CGFloat theta = std::atan2(end.y - start.y, end.x - start.x);
    for (const CGFloat angle : {theta - halfAngle, theta + halfAngle}) {
        path.move(end);
        path.addLine({end.x - length * std::cos(angle), end.y - length * std::sin(angle)});
    }
}

} // namespace

CGRect pointBounds(std::span<const CodablePoint> points) {
    if (points.empty()) {
        return {};
    }
    CGPoint low = points.front().cgPoint();
    CGPoint high = low;
    for (const auto& point : points) {
        low = {std::min(low.x, point.x), std::min(low.y, point.y)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y)};
    }
    return rectBetween(low, high);
}

CGRect FreehandCurve::Segment::bounds() const {
    return boundsOf({start, control1, control2, end});
}

FreehandCurve::Segment FreehandCurve::segment(std::size_t index) const {
    if (isStraight()) {
        return {point(0), point(0), point(1), point(1)};
    }
    const CGPoint p0 = point(index);
    const CGPoint p1 = point(index + 1);
    const CGPoint p2 = point(index + 2);
    const CGPoint p3 = index + 3 < m_points.size() ? point(index + 3) : p2;
    return {index == 0 ? p0 : p1, p1 + (p2 - p0) / 6, p2 - (p3 - p1) / 6, p2};
}

void FreehandCurve::addSegments(std::size_t first, std::size_t last, Path& path) const {
    for (std::size_t index = first; index < last; ++index) {
        const Segment piece = segment(index);
        if (index == first) {
            path.move(piece.start);
        }
        if (isStraight()) {
            path.addLine(piece.end);
        } else {
            path.addCurve(piece.end, piece.control1, piece.control2);
        }
    }
}

Path shapePath(ShapeType type, const CGRect& rect, std::optional<CGPoint> startPoint,
               std::optional<CGPoint> endPoint) {
    Path path;
    switch (type) {
    case ShapeType::rectangle:
        path.addRect(rect);
        break;
    case ShapeType::circle:
        path.addEllipse(rect);
        break;
    case ShapeType::line:
        path.move(startPoint.value_or(CGPoint{rect.minX(), rect.minY()}));
        path.addLine(endPoint.value_or(CGPoint{rect.maxX(), rect.maxY()}));
        break;
    case ShapeType::arrow: {
        const CGPoint start = startPoint.value_or(CGPoint{rect.minX(), rect.midY()});
        const CGPoint end = endPoint.value_or(CGPoint{rect.maxX(), rect.midY()});
        path.move(start);
        path.addLine(end);
        addArrowHead(start, end, path);
        break;
    }
    }
    return path;
}

StrokeForm formOf(const DrawingStroke& stroke) {
    if (stroke.isShape && stroke.shapeType && stroke.shapeRect) {
        return StrokeForm::shape;
    }
    if (stroke.textContent && stroke.fontSize && !stroke.points.empty()) {
        return StrokeForm::text;
    }
    return StrokeForm::freehand;
}

void visitInkOfPath(const Path& path, CGFloat lineWidth, const InkVisitor& visit) {
    const CGFloat reach = inkReach(lineWidth);
    CGPoint start;
    CGPoint pen;
    auto point = path.points().begin();
    const auto visitPiece = [&](CGPoint control1, CGPoint control2, CGPoint end) {
        visitPieces({pen, control1, control2, end}, reach, kDeepestDivision, visit);
        pen = end;
    };
    for (const auto verb : path.verbs()) {
        switch (verb) {
        case Path::Verb::move:
            start = pen = *point++;
            break;
        case Path::Verb::line:
            visitPiece(pen + (*point - pen) / 3, pen + (*point - pen) * 2 / 3, *point);
            ++point;
            break;
        case Path::Verb::curve:
            visitPiece(point[0], point[1], point[2]);
            point += 3;
            break;
        case Path::Verb::close:
            visitPiece(pen + (start - pen) / 3, pen + (start - pen) * 2 / 3, start);
            break;
        }
    }
}

void visitInkOfSegments(const FreehandCurve& curve, std::size_t first, std::size_t last,
                        CGFloat lineWidth, const InkVisitor& visit) {
    const CGFloat reach = inkReach(lineWidth);
    for (std::size_t index = first; index < last; ++index) {
        visitPieces(curve.segment(index), reach, kDeepestDivision, visit);
    }
}

} // namespace quillon
