#include "foundation/UUID.h"

#include <cstddef>
#include <random>

namespace quillon {

namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";

bool isHyphenPlace(std::size_t place) {
    return place == 8 || place == 13 || place == 18 || place == 23;
}

std::optional<unsigned> hexDigit(char character) {
    if (character >= 'a' && character <= 'f') {
        character = static_cast<char>(character - 'a' + 'A');
    }
    const auto value = kDigits.find(character);
    return value == std::string_view::npos ? std::nullopt
                                           : std::optional(static_cast<unsigned>(value));
}

} // namespace

UUID UUID::random() {
    static std::mt19937_64 generator = [] {
        std::random_device device;
        std::seed_seq seed{device(), device(), device(), device(), device(), device()};
        return std::mt19937_64(seed);
    }();
    Bytes bytes{};
    for (std::size_t half = 0; half < 2; ++half) {
        auto word = generator();
        for (std::size_t i = 0; i < 8; ++i, word >>= 8) {
            bytes[half * 8 + i] = static_cast<std::uint8_t>(word & 0xFF);
        }
    }
    bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0F) | 0x40);
    bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3F) | 0x80);
    return UUID(bytes);
}

std::optional<UUID> UUID::fromString(std::string_view text) {
    if (text.size() != 36) {
        return std::nullopt;
    }
    Bytes bytes{};
    std::size_t nibble = 0;
    for (std::size_t place = 0; place < text.size(); ++place) {
        if (isHyphenPlace(place)) {
            if (text[place] != '-') {
                return std::nullopt;
            }
            continue;
        }
        const auto digit = hexDigit(text[place]);
        if (!digit) {
            return std::nullopt;
        }
        auto& byte = bytes[nibble / 2];
        byte = static_cast<std::uint8_t>((unsigned{byte} << 4) | *digit);
        ++nibble;
    }
    return UUID(bytes);
}

std::string UUID::uuidString() const {
    std::string text;
    text.reserve(36);
    for (const std::uint8_t byte : m_bytes) {
        if (isHyphenPlace(text.size())) {
            text += '-';
        }
        text += kDigits[byte >> 4];
        text += kDigits[byte & 0x0F];
    }
    return text;
}

} // namespace quillon
