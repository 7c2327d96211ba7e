#pragma once

namespace quillon {

/// Where the floating toolbar's centre stands, in the overlay's view coordinates, in points.
struct ToolbarPosition {
    double x = 0;
    double y = 0;

    /// Stands for a toolbar that was never placed.
    static const ToolbarPosition defaultPosition;

    friend bool operator==(const ToolbarPosition&, const ToolbarPosition&) = default;
};

inline constexpr ToolbarPosition ToolbarPosition::defaultPosition{0, 0};

} // namespace quillon
