#pragma once

#include "model/RawRepresentable.h"

namespace quillon {

/// The outline of the cursor halo.
enum class HaloShape { ring, squircle, rhombus };

template <>
struct RawValues<HaloShape> {
    static constexpr RawValue<HaloShape> table[] = {
        {HaloShape::ring, "ring"},
        {HaloShape::squircle, "squircle"},
        {HaloShape::rhombus, "rhombus"},
    };
};

std::string_view displayName(HaloShape shape);

} // namespace quillon
