#include "foundation/Description.h"

#include <array>
#include <charconv>
#include <cmath>

namespace quillon {

std::string description(double value) {
    const double size = std::abs(value);
    const bool isPlain = size == 0 || (size >= 1e-4 && size < 18014398509481984.0);
    std::array<char, 64> text{};
    const auto result =
        std::to_chars(text.data(), text.data() + text.size(), value,
                      isPlain ? std::chars_format::fixed : std::chars_format::scientific);
    std::string digits(text.data(), result.ptr);
    if (isPlain && digits.find('.') == std::string::npos) {
        digits += ".0";
    }
    return digits;
}

std::string description(const CGRect& rect) {
    std::string text("(");
    for (const CGFloat number : {rect.x, rect.y, rect.width}) {
        text.append(description(number)).append(", ");
    }
    return text.append(description(rect.height)).append(")");
}

} // namespace quillon
