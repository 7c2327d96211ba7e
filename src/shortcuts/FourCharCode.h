#pragma once

#include <cstdint>
#include <string_view>

namespace quillon {

/// The four-character code of a text: its first four bytes of UTF-8, the first one the most
/// significant. A shorter text gives a smaller number, of a longer one the rest is cut.
constexpr std::uint32_t fourCharCodeValue(std::string_view text) {
    std::uint32_t code = 0;
    for (const char byte : text.substr(0, 4)) {
        code = (code << 8U) | static_cast<unsigned char>(byte);
    }
    return code;
}

} // namespace quillon
