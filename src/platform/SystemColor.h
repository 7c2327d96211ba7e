#pragma once

namespace quillon {

/// A colour by its part in the desktop's look; the host knows what it is, light or dark.
enum class SystemColor {
    /// The accent of the desktop, behind `white` or as ink.
    controlAccent,
    /// The ground of a control.
    controlBackground,
    /// Text of the first and of the second rank.
    label,
    secondaryLabel,
    white,
    windowBackground,
};

} // namespace quillon
