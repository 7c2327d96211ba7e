#pragma once

namespace quillon {

/// A colour by its part in the desktop's look. The host knows its components, light or dark.
struct SystemColor {
    enum class Role {
        clearColor,
        /// The accent of the desktop, behind `whiteColor` or as ink.
        controlAccentColor,
        /// The ground of a control.
        controlBackgroundColor,
        /// Text and glyphs of the first and of the second rank.
        labelColor,
        secondaryLabelColor,
        /// The ink of what destroys.
        systemRedColor,
        whiteColor,
        windowBackgroundColor,
    };

    Role role = Role::labelColor;
    /// Multiplies the alpha that the role itself has.
    double alpha = 1;

    /// The same colour with its alpha multiplied by `factor`.
    constexpr SystemColor opacity(double factor) const { return {role, alpha * factor}; }

    static const SystemColor clearColor, controlAccentColor, controlBackgroundColor, labelColor,
        secondaryLabelColor, systemRedColor, whiteColor, windowBackgroundColor;

    friend bool operator==(const SystemColor&, const SystemColor&) = default;
};

inline constexpr SystemColor SystemColor::clearColor{Role::clearColor};
inline constexpr SystemColor SystemColor::controlAccentColor{Role::controlAccentColor};
inline constexpr SystemColor SystemColor::controlBackgroundColor{Role::controlBackgroundColor};
inline constexpr SystemColor SystemColor::labelColor{Role::labelColor};
inline constexpr SystemColor SystemColor::secondaryLabelColor{Role::secondaryLabelColor};
inline constexpr SystemColor SystemColor::systemRedColor{Role::systemRedColor};
inline constexpr SystemColor SystemColor::whiteColor{Role::whiteColor};
inline constexpr SystemColor SystemColor::windowBackgroundColor{Role::windowBackgroundColor};

} // namespace quillon
