#pragma once

#include "foundation/Binding.h"
#include "settings/ColorPickerRow.h"
#include "settings/ColorPickerSwatch.h"
#include "settings/PickerRow.h"
#include "settings/ShortcutRow.h"
#include "settings/SliderRow.h"

#include <string>
#include <variant>

namespace quillon {

/// How a switch looks: as the desktop has it, or as a sliding switch in any case.
enum class ToggleStyle { automatic, switchStyle };

struct ToggleRow {
    std::string label;
    Binding<bool> isOn;
    ToggleStyle style = ToggleStyle::automatic;
};

/// A text at the left and a swatch at the right, with room between them.
struct SwatchRow {
    std::string label;
    ColorPickerSwatch swatch;
};

/// One line of a form: a label at the left, controls at the right.
using FormRow =
    std::variant<ToggleRow, PickerRow, SliderRow, SwatchRow, ColorPickerRow, ShortcutRow>;

} // namespace quillon
