#pragma once

#include "model/RawRepresentable.h"

namespace quillon {

/// What a click plays. A control shows the raw value with a capital.
enum class ClickAnimationType { pulse, ripple, none };

template <>
struct RawValues<ClickAnimationType> {
    static constexpr RawValue<ClickAnimationType> table[] = {
        {ClickAnimationType::pulse, "pulse"},
        {ClickAnimationType::ripple, "ripple"},
        {ClickAnimationType::none, "none"},
    };
};

} // namespace quillon
