#pragma once

#include "foundation/Binding.h"
#include "foundation/Geometry.h"

#include <functional>
#include <optional>
#include <string>

namespace quillon {

/// The symbol at either end of a slider, small at the minimum and large at the maximum.
struct SliderEnds {
    std::string symbol;
};

/// A text at the left; a slider and its value as a text at the right.
///
/// The slider moves from stop to stop. A value outside of the range or between two stops is shown
/// at the stop next to it and stays as it is until the slider is moved.
struct SliderRow {
    std::string label;
    Binding<double> value;
    double minimum = 0;
    double maximum = 1;
    double step = 1;
    /// The value as the user reads it.
    std::function<std::string(double)> valueText;
    CGFloat sliderWidth = 0;
    CGFloat valueWidth = 0;
    std::optional<SliderEnds> ends;

    /// Stops are numbered from 0, the minimum, to this, the maximum.
    int lastStop() const;
    double valueAt(int stop) const;
    /// The stop at which the present value is shown.
    int stop() const;
    /// Moves the slider, which writes the value of the stop.
    void moveTo(int stop) const { value.set(valueAt(stop)); }
    std::string text() const { return valueText(value.get()); }
};

} // namespace quillon
