#pragma once

#include "foundation/Int.h"

#include <string>

/// Numbers as the user reads them: cut off to their integer part, never rounded.
namespace quillon {

inline std::string numberText(double value) {
    return std::to_string(integerPart(value));
}

/// A part from 0 to 1 as percent.
inline std::string percentText(double part) {
    return numberText(part * 100) + "%";
}

/// A length in points.
inline std::string pointsText(double length) {
    return numberText(length) + "pt";
}

} // namespace quillon
