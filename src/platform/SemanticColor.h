#pragma once

namespace quillon {

/// A colour by its role: the desktop's look, light or dark, decides on its components.
struct SemanticColor {
    enum class Role { clear, primary, secondary, accent, red };

    Role role = Role::primary;
    double alpha = 1;

    /// The same colour with its alpha multiplied by `factor`.
    constexpr SemanticColor opacity(double factor) const { return {role, alpha * factor}; }

    static const SemanticColor clear, primary, secondary, accent, red;

    friend bool operator==(const SemanticColor&, const SemanticColor&) = default;
};

inline constexpr SemanticColor SemanticColor::clear{Role::clear, 0};
inline constexpr SemanticColor SemanticColor::primary{Role::primary, 1};
inline constexpr SemanticColor SemanticColor::secondary{Role::secondary, 1};
inline constexpr SemanticColor SemanticColor::accent{Role::accent, 1};
inline constexpr SemanticColor SemanticColor::red{Role::red, 1};

} // namespace quillon
