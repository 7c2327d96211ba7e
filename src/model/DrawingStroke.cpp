#include "model/DrawingStroke.h"

#include <utility>

namespace quillon {

namespace {

template <typename Coded, typename Plain>
std::optional<Coded> coded(const std::optional<Plain>& value) {
    return value ? std::optional(Coded(*value)) : std::nullopt;
}

std::optional<CGPoint> plain(const std::optional<CodablePoint>& point) {
    return point ? std::optional(point->cgPoint()) : std::nullopt;
}

} // namespace

DrawingStroke::DrawingStroke(Init init)
    : points(init.points.begin(), init.points.end())
    , color(init.color)
    , lineWidth(init.lineWidth)
    , tool(init.tool)
    , isShape(init.isShape)
    , shapeType(init.shapeType)
    , shapeRect(coded<CodableRect>(init.shapeRect))
    , shapeStartPoint(coded<CodablePoint>(init.shapeStartPoint))
    , shapeEndPoint(coded<CodablePoint>(init.shapeEndPoint))
    , textContent(std::move(init.textContent))
    , fontSize(init.fontSize)
    , timestamp(init.timestamp)
    , m_id(init.id) {}

std::vector<CGPoint> DrawingStroke::cgPoints() const {
    std::vector<CGPoint> result;
    result.reserve(points.size());
    for (const auto& point : points) {
        result.push_back(point.cgPoint());
    }
    return result;
}

std::optional<CGRect> DrawingStroke::cgShapeRect() const {
    return shapeRect ? std::optional(shapeRect->cgRect()) : std::nullopt;
}

std::optional<CGPoint> DrawingStroke::cgShapeStartPoint() const {
    return plain(shapeStartPoint);
}

std::optional<CGPoint> DrawingStroke::cgShapeEndPoint() const {
    return plain(shapeEndPoint);
}

} // namespace quillon
