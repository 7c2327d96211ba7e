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

/// The integer part, toward zero.
inline Int integerPart(double value) {
    constexpr double end = 9223372036854775808.0;
    if (!(value >= -end && value < end)) {
        fatalError("a number is out of the range of integers");
    }
    return static_cast<Int>(value);
}

} // namespace quillon
