#include "toolbar/ToolbarButton.h"

#include <utility>

namespace quillon {

SystemColor ToolbarButton::foregroundColor() const {
    if (isDisabled) {
        return SystemColor::secondaryLabelColor.opacity(0.5);
    }
    if (isDestructive) {
        return SystemColor::systemRedColor;
    }
    return isSelected ? SystemColor::controlAccentColor : SystemColor::labelColor;
}

SystemColor ToolbarButton::background() const {
    if (isSelected) {
        return SystemColor::controlAccentColor.opacity(0.15);
    }
    return isHovered && !isDisabled ? SystemColor::labelColor.opacity(0.08)
                                    : SystemColor::clearColor;
}

PressEventsModifier ToolbarButton::pressEvents() {
    return quillon::pressEvents([this] { isPressed = true; }, [this] { isPressed = false; });
}

void ToolbarButton::follow(ToolbarButton newer) {
    newer.isPressed = isPressed;
    *this = std::move(newer);
}

} // namespace quillon
