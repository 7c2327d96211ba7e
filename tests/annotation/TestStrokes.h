#pragma once

#include "annotation/AnnotationCanvas.h"
#include "model/DrawingStroke.h"

#include <string>
#include <vector>

namespace quillon::test {

inline DrawingStroke freehand(const std::vector<CGPoint>& points,
                              DrawingTool tool = DrawingTool::pen, CGFloat lineWidth = 4) {
    return DrawingStroke(
        {.points = points, .color = Color::red, .lineWidth = lineWidth, .tool = tool});
}

inline DrawingStroke shape(ShapeType type, const CGRect& rect) {
    return DrawingStroke({.points = {rect.origin()},
                          .color = Color::red,
                          .lineWidth = 4,
                          .tool = DrawingTool::rectangle,
                          .isShape = true,
                          .shapeType = type,
                          .shapeRect = rect});
}

inline DrawingStroke text(CGPoint anchor, const std::string& content = "Text") {
    return DrawingStroke({.points = {anchor},
                          .color = Color::red,
                          .lineWidth = 4,
                          .tool = DrawingTool::text,
                          .textContent = content,
                          .fontSize = 24.0});
}

inline std::vector<UUID> idsOf(const StrokeList& strokes) {
    std::vector<UUID> ids;
    for (const auto& stroke : strokes) {
        ids.push_back(stroke.id());
    }
    return ids;
}

} // namespace quillon::test
