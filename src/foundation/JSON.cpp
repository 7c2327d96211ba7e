#include "foundation/JSON.h"

#include <cmath>
#include <limits>

namespace quillon {

namespace {

bool holdsOnlyFiniteNumbers(const JSON& value) {
    if (value.is_number_float()) {
        return std::isfinite(value.get<double>());
    }
    if (value.is_structured()) {
        for (const auto& element : value) {
            if (!holdsOnlyFiniteNumbers(element)) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

std::optional<JSON> parseJSON(std::string_view text) {
    JSON value = JSON::parse(text, nullptr, /*allow_exceptions=*/false);
    if (value.is_discarded()) {
        return std::nullopt;
    }
    return value;
}

std::optional<std::string> serializeJSON(const JSON& value) {
    // The library would write a number that is not finite as null, which reads back as something
    // else, and it throws at a string that is not UTF-8.
    if (!holdsOnlyFiniteNumbers(value)) {
        return std::nullopt;
    }
    try {
        return value.dump();
    } catch (const JSON::exception&) {
        return std::nullopt;
    }
}

std::optional<double> jsonNumber(const JSON& value) {
    return value.is_number() ? std::optional(value.get<double>()) : std::nullopt;
}

std::optional<std::uint32_t> jsonUInt32(const JSON& value) {
    const auto number = jsonNumber(value);
    if (!number || *number < 0 || *number > std::numeric_limits<std::uint32_t>::max() ||
        std::trunc(*number) != *number) {
        return std::nullopt;
    }
    return static_cast<std::uint32_t>(*number);
}

std::optional<bool> jsonBool(const JSON& value) {
    return value.is_boolean() ? std::optional(value.get<bool>()) : std::nullopt;
}

std::optional<std::string> jsonString(const JSON& value) {
    return value.is_string() ? std::optional(value.get<std::string>()) : std::nullopt;
}

const JSON* jsonMember(const JSON& object, std::string_view key) {
    if (!object.is_object()) {
        return nullptr;
    }
    const auto member = object.find(std::string(key));
    return member == object.end() || member->is_null() ? nullptr : &*member;
}

} // namespace quillon
