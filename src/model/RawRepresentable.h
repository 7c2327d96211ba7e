#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string_view>

/// Enumerations with string raw values.
///
/// Each such type has one constexpr table, `RawValues<E>::table`, that lists its cases in order
/// with their raw values; everything else follows from it.
namespace quillon {

template <typename E>
struct RawValue {
    E value;
    std::string_view raw;
};

template <typename E>
struct RawValues;

template <typename E>
concept RawRepresentable = requires {
    RawValues<E>::table;
};

/// All cases, in order.
template <RawRepresentable E>
constexpr auto allCases() {
    constexpr auto& table = RawValues<E>::table;
    std::array<E, std::size(table)> cases{};
    std::ranges::transform(table, cases.begin(), &RawValue<E>::value);
    return cases;
}

template <RawRepresentable E>
constexpr std::string_view rawValue(E value) {
    return std::ranges::find(RawValues<E>::table, value, &RawValue<E>::value)->raw;
}

/// The identity of a case is its raw value.
template <RawRepresentable E>
constexpr std::string_view id(E value) {
    return rawValue(value);
}

/// An exact, case-sensitive match; any other string yields nothing.
template <RawRepresentable E>
constexpr std::optional<E> fromRawValue(std::string_view raw) {
    const auto* entry = std::ranges::find(RawValues<E>::table, raw, &RawValue<E>::raw);
    return entry == std::end(RawValues<E>::table) ? std::nullopt : std::optional(entry->value);
}

} // namespace quillon
