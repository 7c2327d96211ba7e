#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The one place that knows the JSON library. No exception leaves it: what does not encode or
/// decode yields nothing.
namespace quillon {

/// A JSON value whose objects keep their members in the order in which they were added.
using JSON = nlohmann::ordered_json;

/// Reads a text, or nothing when it is not JSON.
std::optional<JSON> parseJSON(std::string_view text);

/// Writes a value without white space, or nothing when it holds what JSON cannot say: a number that
/// is not finite, a string that is not UTF-8.
std::optional<std::string> serializeJSON(const JSON& value);

/// The number in `value`, or nothing when it holds none.
std::optional<double> jsonNumber(const JSON& value);

/// The whole number from 0 to 2^32 - 1 in `value`, or nothing.
std::optional<std::uint32_t> jsonUInt32(const JSON& value);

std::optional<bool> jsonBool(const JSON& value);
std::optional<std::string> jsonString(const JSON& value);

/// The member `key` of an object. A value that is no object, a missing member and one that holds
/// null all yield null.
const JSON* jsonMember(const JSON& object, std::string_view key);

} // namespace quillon
