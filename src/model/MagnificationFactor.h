#pragma once

#include "model/RawRepresentable.h"

#include "foundation/Geometry.h"

namespace quillon {

/// How much the lens magnifies.
enum class MagnificationFactor { x1_5, x2, x4, x8 };

template <>
struct RawValues<MagnificationFactor> {
    static constexpr RawValue<MagnificationFactor> table[] = {
        {MagnificationFactor::x1_5, "1.5x"},
        {MagnificationFactor::x2, "2x"},
        {MagnificationFactor::x4, "4x"},
        {MagnificationFactor::x8, "8x"},
    };
};

/// The raw value itself.
std::string_view displayName(MagnificationFactor magnification);

CGFloat factor(MagnificationFactor magnification);

} // namespace quillon
