#include "toolbar/ToolbarButton.h"

#include <utility>

namespace quillon {

SemanticColor ToolbarButton::foregroundColor() const {
    if (isDisabled) {
        return SemanticColor::secondary.opacity(0.5);
    }
    if (isDestructive) {
        return SemanticColor::red;
    }
    return isSelected ? SemanticColor::accent : SemanticColor::primary;
}

SemanticColor ToolbarButton::background() const {
    if (isSelected) {
        return SemanticColor::accent.opacity(0.15);
    }
    return isHovered && !isDisabled ? SemanticColor::primary.opacity(0.08) : SemanticColor::clear;
}

PressEventsModifier ToolbarButton::pressEvents() {
    return quillon::pressEvents([this] { isPressed = true; }, [this] { isPressed = false; });
}

void ToolbarButton::follow(ToolbarButton newer) {
    newer.isPressed = isPressed;
    *this = std::move(newer);
}

} // namespace quillon
