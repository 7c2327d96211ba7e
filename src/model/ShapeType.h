#pragma once

#include "model/RawRepresentable.h"

namespace quillon {

/// The outline of a stroke that is a shape; none is ever filled. Rectangle and circle lie in the
/// shape's rectangle, the circle as the ellipse that touches its sides. Line and arrow run from the
/// point where the drag began to the one where it ended, and there the arrow has its head.
enum class ShapeType { rectangle, circle, line, arrow };

template <>
struct RawValues<ShapeType> {
    static constexpr RawValue<ShapeType> table[] = {
        {ShapeType::rectangle, "rectangle"},
        {ShapeType::circle, "circle"},
        {ShapeType::line, "line"},
        {ShapeType::arrow, "arrow"},
    };
};

} // namespace quillon
