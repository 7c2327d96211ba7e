#pragma once

#include "foundation/FatalError.h"

#include <cstdint>
#include <limits>

namespace quillon {

/// A whole number that is never to run out of range; where it would, the program ends.
using Int = std::int64_t;

inline void increment(Int& counter) {
    if (counter == std::numeric_limits<Int>::max()) {
        fatalError("a counter ran out of numbers");
    }
    ++counter;
}

/// The integer part of `value`, toward zero, as every number is shown to the user. A value that is
/// not finite, or that no `Int` holds, is a broken assumption and ends the program.
inline Int integerPart(double value) {
    constexpr double end = 9223372036854775808.0;
    // Written so that a value that is no number fails as well.
    if (!(value >= -end && value < end)) {
        fatalError("a number out of the range of integers has no integer part");
    }
    return static_cast<Int>(value);
}

} // namespace quillon
