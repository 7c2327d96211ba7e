#pragma once

#include "foundation/Binding.h"
#include "foundation/Geometry.h"
#include "toolbar/ColorSwatchView.h"

#include <functional>
#include <string>
#include <variant>
#include <vector>

/// What opens below the palette's buttons, as plain values. Sizes in points.
namespace quillon {

/// A row of a symbol and a name; the current one has a check mark as well.
struct ToolMenuEntry {
    std::string icon;
    std::string label;
    bool hasCheckmark = false;
    std::function<void()> action;
};

struct ToolMenu {
    static constexpr const char* checkmark = "checkmark";

    std::vector<ToolMenuEntry> entries;
};

struct SwatchButton {
    ColorSwatchView face;
    std::function<void()> action;
};

/// A titled grid of swatches, as many in a row as find room.
struct SwatchSection {
    static constexpr CGFloat minimumColumnWidth = 30;
    static constexpr CGFloat rowSpacing = 8;
    static constexpr CGFloat verticalPadding = 4;

    std::string title;
    std::vector<SwatchButton> swatches;
};

/// The sections, a divider, and the entry for any other colour.
struct ColorMenu {
    std::vector<SwatchSection> sections;
    std::string customLabel;
    std::string customIcon;
    std::function<void()> customAction;
};

/// A slider with a symbol at each end.
struct SliderControl {
    Binding<CGFloat> value;
    double minimum = 0;
    double maximum = 1;
    /// Nothing when it is 0: the slider is continuous.
    double step = 0;
    std::string accessibilityLabel;
    std::string minimumIcon;
    std::string maximumIcon;
    CGFloat width = 0;
};

/// A button whose face is a bar as thick as the line that it chooses.
struct LineWidthPreset {
    static constexpr CGFloat width = 30;
    static constexpr CGFloat cornerRadius = 2;

    CGFloat height = 0;
    std::function<void()> action;
};

/// A left-aligned column: the heading, the slider, and a row of the presets.
struct LineWidthMenu {
    static constexpr CGFloat spacing = 8;
    static constexpr CGFloat padding = 12;

    std::string heading;
    SliderControl slider;
    std::vector<LineWidthPreset> presets;
};

using PaletteMenu = std::variant<ToolMenu, ColorMenu, LineWidthMenu>;

} // namespace quillon
