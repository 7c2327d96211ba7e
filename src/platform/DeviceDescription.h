#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <variant>

namespace quillon {

/// A value that a device gives about itself.
using DeviceValue = std::variant<std::int64_t, double, std::string>;

/// What a device tells about itself, by key.
using DeviceDescription = std::map<std::string, DeviceValue>;

/// The same number as 32 bits without a sign, or nothing when the value is no such number.
inline std::optional<std::uint32_t> toUInt32(const DeviceValue& value) {
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        const auto narrow = static_cast<std::uint32_t>(*integer);
        return narrow == *integer ? std::optional(narrow) : std::nullopt;
    }
    if (const auto* real = std::get_if<double>(&value)) {
        constexpr double end = 4294967296;
        if (*real >= 0 && *real < end) {
            const auto whole = static_cast<std::uint32_t>(*real);
            return static_cast<double>(whole) == *real ? std::optional(whole) : std::nullopt;
        }
    }
    return std::nullopt;
}

} // namespace quillon
