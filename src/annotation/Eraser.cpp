#include "annotation/Eraser.h"

#include "annotation/EraserIndex.h"
#include "annotation/StrokePath.h"

#include <algorithm>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace quillon {

namespace {

constexpr CGFloat kTextReach = 20;

/// So many neighbouring segments are left alone after one look when no eraser point is near.
constexpr std::size_t kSegmentsInGroup = 8;

/// The points of a freehand stroke that the eraser leaves, or nothing when it took none.
std::optional<std::vector<CodablePoint>> pointsLeft(const FinishedStroke& finished,
                                                    const EraserIndex& eraser, CGFloat reach) {
    const auto& points = finished.stroke().points;
    if (points.size() < 2 || !eraser.mayTouch(finished.pointBounds().outset(reach))) {
        return std::nullopt;
    }
    // Removing a point never brings a segment to the test that was not there before, so each
    // segment is tested once and takes its first point with it.
    std::vector<CodablePoint> left;
    left.reserve(points.size());
    for (std::size_t first = 0; first + 1 < points.size(); first += kSegmentsInGroup) {
        const std::size_t past = std::min(first + kSegmentsInGroup, points.size() - 1);
        const auto group = std::span(points).subspan(first, past - first + 1);
        if (!eraser.mayTouch(pointBounds(group).outset(reach))) {
            left.insert(left.end(), group.begin(), group.end() - 1);
            continue;
        }
        for (std::size_t index = first; index < past; ++index) {
            const CGPoint start = points[index].cgPoint();
            const CGPoint end = points[index + 1].cgPoint();
            // A point that is told apart by four comparisons needs no distance.
            const CGRect near = rectBetween(start, end).outset(reach + 1);
            const bool isHit = eraser.anyPointIn(near, [&](CGPoint point) {
                return near.contains(point) &&
                       distanceFromPointToSegment(point, start, end) < reach;
            });
            if (!isHit) {
                left.push_back(points[index]);
            }
        }
    }
    left.push_back(points.back());
    return left.size() < points.size() ? std::optional(std::move(left)) : std::nullopt;
}

} // namespace

void processEraser(const DrawingStroke& eraserStroke, StrokeList& strokes) {
    const CGFloat width = eraserStroke.lineWidth;
    const EraserIndex eraser(eraserStroke.points);
    std::vector<UUID> removals;
    std::vector<std::pair<std::size_t, DrawingStroke>> updates;
    for (std::size_t index = 0; index < strokes.size(); ++index) {
        const FinishedStroke& finished = *strokes.ref(index);
        const DrawingStroke& stroke = finished.stroke();
        if (stroke.tool == DrawingTool::eraser) {
            continue;
        }
        if (stroke.isShape && stroke.shapeRect) {
            const CGRect reach = stroke.cgShapeRect()->outset(width);
            if (eraser.anyPointIn(reach, [&](CGPoint point) { return reach.contains(point); })) {
                removals.push_back(stroke.id());
            }
        } else if (stroke.textContent && !stroke.points.empty()) {
            const CGPoint anchor = stroke.points.front().cgPoint();
            const CGFloat reach = width + kTextReach;
            const CGRect near = CGRect{anchor.x, anchor.y, 0, 0}.outset(reach);
            if (eraser.anyPointIn(near,
                                  [&](CGPoint point) { return distance(point, anchor) < reach; })) {
                removals.push_back(stroke.id());
            }
        } else if (auto left = pointsLeft(finished, eraser, width / 2)) {
            if (left->size() > 1) {
                DrawingStroke shortened = stroke;
                shortened.points = *std::move(left);
                updates.emplace_back(index, std::move(shortened));
            } else {
                removals.push_back(stroke.id());
            }
        }
    }
    for (auto update = updates.rbegin(); update != updates.rend(); ++update) {
        strokes.replace(update->first, std::move(update->second));
    }
    if (!removals.empty()) {
        std::ranges::sort(removals);
        strokes.removeIf([&](const DrawingStroke& stroke) {
            return std::ranges::binary_search(removals, stroke.id());
        });
    }
}

CGFloat distanceFromPointToSegment(CGPoint point, CGPoint segmentStart, CGPoint segmentEnd) {
    const CGFloat dx = segmentEnd.x - segmentStart.x;
    const CGFloat dy = segmentEnd.y - segmentStart.y;
    if (dx == 0 && dy == 0) {
        return distance(point, segmentStart);
    }
    const CGFloat along =
        ((point.x - segmentStart.x) * dx + (point.y - segmentStart.y) * dy) / (dx * dx + dy * dy);
    const CGFloat t = std::max(0.0, std::min(1.0, along));
    return distance(point, {segmentStart.x + t * dx, segmentStart.y + t * dy});
}

} // namespace quillon
