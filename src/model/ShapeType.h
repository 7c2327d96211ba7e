#pragma once

#include "model/RawRepresentable.h"

namespace quillon {

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
