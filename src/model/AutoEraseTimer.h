#pragma once

#include "model/RawRepresentable.h"

#include <optional>

namespace quillon {

/// How long a stroke stays.
enum class AutoEraseTimer { off, twoSeconds, fiveSeconds, tenSeconds };

template <>
struct RawValues<AutoEraseTimer> {
    static constexpr RawValue<AutoEraseTimer> table[] = {
        {AutoEraseTimer::off, "off"},
        {AutoEraseTimer::twoSeconds, "2s"},
        {AutoEraseTimer::fiveSeconds, "5s"},
        {AutoEraseTimer::tenSeconds, "10s"},
    };
};

std::string_view displayName(AutoEraseTimer timer);

/// In seconds; nothing for `off`.
std::optional<double> duration(AutoEraseTimer timer);

} // namespace quillon
