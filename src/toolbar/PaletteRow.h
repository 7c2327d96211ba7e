#pragma once

#include "toolbar/PaletteMenus.h"
#include "toolbar/ToolbarButton.h"

#include <optional>
#include <variant>
#include <vector>

/// What stands in the palette, as plain values. Sizes in points.
namespace quillon {

struct PaletteDivider {
    CGFloat height = 0;
};

/// A key that works like a click while the overlay has the keyboard. Command is held in any case.
struct KeyEquivalent {
    char key = 0;
    bool withShift = false;

    friend bool operator==(const KeyEquivalent&, const KeyEquivalent&) = default;
};

/// A button of the palette with what belongs to it.
struct PaletteControl {
    ToolbarButton button;
    /// Called with true when the pointer enters, with false when it leaves.
    std::function<void(bool)> onHover;
    /// The button goes dead with this, and its key with it.
    bool isDisabled = false;
    std::optional<KeyEquivalent> keyEquivalent = std::nullopt;
    /// A button with a menu opens it below itself.
    std::optional<PaletteMenu> menu = std::nullopt;
};

struct PaletteGroup {
    CGFloat spacing = 0;
    std::vector<PaletteControl> controls;
};

using PaletteChild = std::variant<PaletteControl, PaletteGroup, PaletteDivider>;

/// The palette's row, left to right.
struct PaletteRow {
    static constexpr CGFloat spacing = 8;
    static constexpr CGFloat horizontalPadding = 12;
    static constexpr CGFloat verticalPadding = 8;

    std::vector<PaletteChild> children;
};

/// The panel behind the row: a rounded rectangle of translucent material with a shadow, and a line
/// over its edge.
struct PalettePanel {
    static constexpr CGFloat cornerRadius = 14;
    static constexpr Shadow shadow{Color(0, 0, 0, 0.2), 8, {0, 4}};
    static constexpr CGFloat borderLineWidth = 1;
    static constexpr Color borderColor{1, 1, 1, 0.1};
};

} // namespace quillon
