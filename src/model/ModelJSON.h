#pragma once

#include "foundation/JSON.h"
#include "model/CodableColor.h"
#include "model/CodablePoint.h"
#include "model/CodableRect.h"
#include "model/DrawingStroke.h"
#include "model/HotkeyConfig.h"
#include "model/RawRepresentable.h"
#include "model/ToolbarPosition.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

/// The JSON shapes of the model. Objects are keyed by field names, in field order. An optional
/// member that is missing or null decodes to nothing; a required member that is missing, or any of
/// the wrong form, fails the whole value. Members that are not known are passed over.
namespace quillon {

JSON encodeJSON(const CodablePoint& point);
JSON encodeJSON(const CodableRect& rect);
JSON encodeJSON(const CodableColor& color);
JSON encodeJSON(const DrawingStroke& stroke);
JSON encodeJSON(const ToolbarPosition& position);
JSON encodeJSON(const HotkeyConfig& config);
/// One flat array in which actions and bindings alternate.
JSON encodeJSON(const HotkeyMap& hotkeys);

template <RawRepresentable E>
JSON encodeJSON(E value) {
    return std::string(rawValue(value));
}

template <typename T>
JSON encodeJSON(const std::vector<T>& values) {
    JSON array = JSON::array();
    for (const auto& value : values) {
        array.push_back(encodeJSON(value));
    }
    return array;
}

void decodeJSON(const JSON& json, std::optional<CodablePoint>& point);
void decodeJSON(const JSON& json, std::optional<CodableRect>& rect);
void decodeJSON(const JSON& json, std::optional<CodableColor>& color);
void decodeJSON(const JSON& json, std::optional<DrawingStroke>& stroke);
void decodeJSON(const JSON& json, std::optional<ToolbarPosition>& position);
void decodeJSON(const JSON& json, std::optional<HotkeyConfig>& config);
/// Pairs in any order. The action inside a binding is not compared with its key.
void decodeJSON(const JSON& json, std::optional<HotkeyMap>& hotkeys);

template <RawRepresentable E>
void decodeJSON(const JSON& json, std::optional<E>& value) {
    const auto raw = jsonString(json);
    value = raw ? fromRawValue<E>(*raw) : std::nullopt;
}

template <typename T>
void decodeJSON(const JSON& json, std::optional<std::vector<T>>& values) {
    values.reset();
    if (!json.is_array()) {
        return;
    }
    std::vector<T> decoded;
    for (const auto& element : json) {
        std::optional<T> value;
        decodeJSON(element, value);
        if (!value) {
            return;
        }
        decoded.push_back(*std::move(value));
    }
    values = std::move(decoded);
}

/// The value that `json` holds, or nothing when it does not hold one.
template <typename T>
std::optional<T> decodeJSON(const JSON& json) {
    std::optional<T> value;
    decodeJSON(json, value);
    return value;
}

} // namespace quillon
