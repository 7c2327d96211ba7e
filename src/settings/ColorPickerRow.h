#pragma once

#include "foundation/Binding.h"
#include "foundation/Color.h"
#include "foundation/Geometry.h"

#include <string>

namespace quillon {

/// A title at the left and a circle of the colour at the right. It only shows the colour: a click
/// does nothing, and the binding is never written.
struct ColorPickerRow {
    static constexpr CGSize circleSize{24, 24};
    static constexpr CGFloat ringWidth = 1;
    static constexpr double ringOpacity = 0.5;

    std::string title;
    Binding<Color> color;
};

} // namespace quillon
