#pragma once

#include "foundation/FatalError.h"

#include <cmath>
#include <cstdint>

namespace quillon {

/// The integer part of `value`, toward zero, as every number is shown to the user. A value that is
/// not finite, or that no 64-bit integer holds, is a broken assumption and ends the program.
inline std::int64_t truncated(double value) {
    constexpr double limit = 9223372036854775808.0;
    if (!std::isfinite(value) || value < -limit || value >= limit) {
        fatalError("a number to be shown has no integer part");
    }
    return static_cast<std::int64_t>(value);
}

} // namespace quillon
