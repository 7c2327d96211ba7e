#include "settings/SliderRow.h"

#include <algorithm>
#include <cmath>

namespace quillon {

int SliderRow::lastStop() const {
    return static_cast<int>(std::lround((maximum - minimum) / step));
}

double SliderRow::valueAt(int stop) const {
    return std::clamp(minimum + stop * step, minimum, maximum);
}

int SliderRow::stop() const {
    const double stored = value.get();
    const double shown = std::isnan(stored) ? minimum : std::clamp(stored, minimum, maximum);
    return static_cast<int>(std::lround((shown - minimum) / step));
}

} // namespace quillon
