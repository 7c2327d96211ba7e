#pragma once

#include "foundation/Geometry.h"
#include "settings/SettingsTab.h"

#include <string>
#include <variant>
#include <vector>

namespace quillon {

/// The button of a tab: its symbol above its label. The selected one is in the accent colour, on a
/// ground of that colour; the others are in the colour of text.
struct TabButton {
    static constexpr CGFloat spacing = 4;
    static constexpr CGFloat symbolFontSize = 16;
    static constexpr CGFloat textFontSize = 11;
    static constexpr CGFloat verticalPadding = 10;
    static constexpr double selectedGroundOpacity = 0.15;

    SettingsTab tab = SettingsTab::general;
    std::string symbol;
    std::string label;
    bool isSelected = false;

    friend bool operator==(const TabButton&, const TabButton&) = default;
};

/// A vertical line between two tabs.
struct TabDivider {
    static constexpr CGFloat height = 20;

    friend bool operator==(const TabDivider&, const TabDivider&) = default;
};

/// The strip of tabs, from the left, on the ground of the window, with a divider over its bottom
/// edge. All buttons are equally wide.
struct TabStrip {
    std::vector<std::variant<TabButton, TabDivider>> items;

    static TabStrip of(SettingsTab selected);

    friend bool operator==(const TabStrip&, const TabStrip&) = default;
};

} // namespace quillon
