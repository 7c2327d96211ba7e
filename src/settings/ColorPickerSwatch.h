#pragma once

#include "foundation/Binding.h"
#include "foundation/Color.h"
#include "foundation/Geometry.h"

namespace quillon {

/// A well that shows a colour and edits it in the desktop's colour panel. Its title is empty and
/// hidden.
struct ColorPickerSwatch {
    static constexpr CGSize size{32, 24};
    static constexpr bool supportsOpacity = true;

    Binding<Color> color;
};

} // namespace quillon
