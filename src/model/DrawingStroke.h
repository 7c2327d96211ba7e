#pragma once

#include "foundation/Color.h"
#include "foundation/Date.h"
#include "foundation/Geometry.h"
#include "foundation/UUID.h"
#include "model/CodableColor.h"
#include "model/CodablePoint.h"
#include "model/CodableRect.h"
#include "model/DrawingTool.h"
#include "model/ShapeType.h"

#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// One annotation of any kind. What it is follows from which optional fields are present. Points
/// and sizes are in view coordinates, in points.
class DrawingStroke {
public:
    /// What a stroke is built from.
    struct Init {
        UUID id = UUID::random();
        std::vector<CGPoint> points = {};
        Color color;
        CGFloat lineWidth;
        DrawingTool tool;
        bool isShape = false;
        std::optional<ShapeType> shapeType = {};
        std::optional<CGRect> shapeRect = {};
        std::optional<CGPoint> shapeStartPoint = {};
        std::optional<CGPoint> shapeEndPoint = {};
        std::optional<std::string> textContent = {};
        std::optional<CGFloat> fontSize = {};
        Date timestamp = Date::now();
    };

    explicit DrawingStroke(Init init);

    /// Fixed at construction.
    const UUID& id() const { return m_id; }

    /// The polyline of a freehand stroke; the anchor alone for a shape or a text.
    std::vector<CodablePoint> points;
    CodableColor color;
    double lineWidth;
    DrawingTool tool;
    bool isShape;
    std::optional<ShapeType> shapeType;
    /// The shape's bounds, with a non-negative size.
    std::optional<CodableRect> shapeRect;
    /// Where the shape's drag began, and where it is or ended.
    std::optional<CodablePoint> shapeStartPoint;
    std::optional<CodablePoint> shapeEndPoint;
    std::optional<std::string> textContent;
    std::optional<double> fontSize;
    /// When the stroke was made. Nothing reads it: how long a stroke lives is decided elsewhere.
    Date timestamp;

    std::vector<CGPoint> cgPoints() const;
    std::optional<CGRect> cgShapeRect() const;
    std::optional<CGPoint> cgShapeStartPoint() const;
    std::optional<CGPoint> cgShapeEndPoint() const;
    Color viewColor() const { return color.color(); }

    friend bool operator==(const DrawingStroke&, const DrawingStroke&) = default;

private:
    UUID m_id;
};

} // namespace quillon
