#pragma once

#include "foundation/Geometry.h"
#include "platform/SystemColor.h"
#include "toolbar/PressEventsModifier.h"

#include <functional>
#include <string>

namespace quillon {

/// A button of the palette: a symbol with a caption under it. Sizes in points.
///
/// The face, from the inside out: a column of the symbol and the caption in the foreground colour;
/// a frame; the background; the press scale about the centre, carried by a spring.
struct ToolbarButton {
    static constexpr CGFloat spacing = 2;
    static constexpr CGFloat symbolFontSize = 16;
    static constexpr CGSize symbolFrame{24, 24};
    static constexpr CGFloat captionFontSize = 9;
    static constexpr CGSize frame{50, 44};
    static constexpr CGFloat backgroundCornerRadius = 8;
    static constexpr double pressedScale = 0.95;
    static constexpr double springResponse = 0.2;
    static constexpr double springDampingFraction = 0.6;

    std::string icon;
    std::string label;
    bool isSelected = false;
    bool isHovered = false;
    bool isDisabled = false;
    bool isDestructive = false;
    /// Run on a click.
    std::function<void()> action = {};

    /// Drives the press scale. It belongs to the button that is on the screen and outlasts its
    /// newer descriptions.
    bool isPressed = false;

    SystemColor foregroundColor() const;
    SystemColor background() const;
    double scale() const { return isPressed ? pressedScale : 1; }

    PressEventsModifier pressEvents();
    /// Takes over a newer description of the same button.
    void follow(ToolbarButton newer);
};

} // namespace quillon
