#include "model/ModelJSON.h"

namespace quillon {

namespace {

void decodeJSON(const JSON& json, std::optional<double>& number) {
    number = jsonNumber(json);
}
void decodeJSON(const JSON& json, std::optional<bool>& value) {
    value = jsonBool(json);
}
void decodeJSON(const JSON& json, std::optional<std::string>& text) {
    text = jsonString(json);
}
void decodeJSON(const JSON& json, std::optional<std::uint32_t>& number) {
    number = jsonUInt32(json);
}

/// Reads the members of one object, and remembers whether all went well.
class MemberReader {
public:
    explicit MemberReader(const JSON& object)
        : m_object(object)
        , m_isComplete(object.is_object()) {}

    /// Nothing when the member is missing or of the wrong form, which fails the object.
    template <typename T>
    std::optional<T> required(std::string_view key) {
        auto value = optional<T>(key);
        m_isComplete = m_isComplete && value;
        return value;
    }

    template <typename T>
    T required(std::string_view key, T fallback) {
        return required<T>(key).value_or(std::move(fallback));
    }

    /// Nothing when the member is missing; one of the wrong form fails the object.
    template <typename T>
    std::optional<T> optional(std::string_view key) {
        std::optional<T> value;
        if (const JSON* member = jsonMember(m_object, key)) {
            decodeJSON(*member, value);
            m_isComplete = m_isComplete && value;
        }
        return value;
    }

    bool isComplete() const { return m_isComplete; }

private:
    const JSON& m_object;
    bool m_isComplete;
};

template <typename T>
void addIfPresent(JSON& object, const char* key, const std::optional<T>& value) {
    if (!value) {
        return;
    }
    if constexpr (requires { encodeJSON(*value); }) {
        object[key] = encodeJSON(*value);
    } else {
        object[key] = *value;
    }
}

} // namespace

JSON encodeJSON(const CodablePoint& point) {
    return {{"x", point.x}, {"y", point.y}};
}

JSON encodeJSON(const CodableRect& rect) {
    return {{"x", rect.x}, {"y", rect.y}, {"width", rect.width}, {"height", rect.height}};
}

JSON encodeJSON(const CodableColor& color) {
    return {
        {"red", color.red}, {"green", color.green}, {"blue", color.blue}, {"alpha", color.alpha}};
}

JSON encodeJSON(const DrawingStroke& stroke) {
    JSON object = {
        {"id", stroke.id().uuidString()},    {"points", encodeJSON(stroke.points)},
        {"color", encodeJSON(stroke.color)}, {"lineWidth", stroke.lineWidth},
        {"tool", encodeJSON(stroke.tool)},   {"isShape", stroke.isShape},
    };
    addIfPresent(object, "shapeType", stroke.shapeType);
    addIfPresent(object, "shapeRect", stroke.shapeRect);
    addIfPresent(object, "shapeStartPoint", stroke.shapeStartPoint);
    addIfPresent(object, "shapeEndPoint", stroke.shapeEndPoint);
    addIfPresent(object, "textContent", stroke.textContent);
    addIfPresent(object, "fontSize", stroke.fontSize);
    object["timestamp"] = stroke.timestamp.secondsSinceReferenceDate;
    return object;
}

JSON encodeJSON(const ToolbarPosition& position) {
    return {{"x", position.x}, {"y", position.y}};
}

JSON encodeJSON(const HotkeyConfig& config) {
    return {{"keyCode", config.keyCode},
            {"modifiers", config.modifiers},
            {"action", encodeJSON(config.action)}};
}

JSON encodeJSON(const HotkeyMap& hotkeys) {
    JSON array = JSON::array();
    for (const auto& [action, config] : hotkeys) {
        array.push_back(encodeJSON(action));
        array.push_back(encodeJSON(config));
    }
    return array;
}

void decodeJSON(const JSON& json, std::optional<CodablePoint>& point) {
    MemberReader reader(json);
    const CGPoint read{reader.required("x", 0.0), reader.required("y", 0.0)};
    point = reader.isComplete() ? std::optional(CodablePoint(read)) : std::nullopt;
}

void decodeJSON(const JSON& json, std::optional<CodableRect>& rect) {
    MemberReader reader(json);
    const CGRect read{reader.required("x", 0.0), reader.required("y", 0.0),
                      reader.required("width", 0.0), reader.required("height", 0.0)};
    rect = reader.isComplete() ? std::optional(CodableRect(read)) : std::nullopt;
}

void decodeJSON(const JSON& json, std::optional<CodableColor>& color) {
    MemberReader reader(json);
    CodableColor read;
    read.red = reader.required("red", 0.0);
    read.green = reader.required("green", 0.0);
    read.blue = reader.required("blue", 0.0);
    read.alpha = reader.required("alpha", 0.0);
    color = reader.isComplete() ? std::optional(read) : std::nullopt;
}

void decodeJSON(const JSON& json, std::optional<DrawingStroke>& stroke) {
    stroke.reset();
    MemberReader reader(json);
    const auto id = UUID::fromString(reader.required<std::string>("id", {}));
    if (!id) {
        return;
    }
    DrawingStroke read({
        .id = *id,
        .color = Color::clear,
        .lineWidth = reader.required("lineWidth", 0.0),
        .tool = reader.required("tool", DrawingTool::pen),
        .isShape = reader.required("isShape", false),
        .shapeType = reader.optional<ShapeType>("shapeType"),
        .textContent = reader.optional<std::string>("textContent"),
        .fontSize = reader.optional<double>("fontSize"),
        .timestamp = {reader.required("timestamp", 0.0)},
    });
    read.points = reader.required<std::vector<CodablePoint>>("points", {});
    read.color = reader.required("color", CodableColor());
    read.shapeRect = reader.optional<CodableRect>("shapeRect");
    read.shapeStartPoint = reader.optional<CodablePoint>("shapeStartPoint");
    read.shapeEndPoint = reader.optional<CodablePoint>("shapeEndPoint");
    if (reader.isComplete()) {
        stroke = std::move(read);
    }
}

void decodeJSON(const JSON& json, std::optional<ToolbarPosition>& position) {
    MemberReader reader(json);
    const ToolbarPosition read{reader.required("x", 0.0), reader.required("y", 0.0)};
    position = reader.isComplete() ? std::optional(read) : std::nullopt;
}

void decodeJSON(const JSON& json, std::optional<HotkeyConfig>& config) {
    MemberReader reader(json);
    const HotkeyConfig read{reader.required<std::uint32_t>("keyCode", 0),
                            reader.required<std::uint32_t>("modifiers", 0),
                            reader.required("action", HotkeyAction::toggleAnnotation)};
    config = reader.isComplete() ? std::optional(read) : std::nullopt;
}

void decodeJSON(const JSON& json, std::optional<HotkeyMap>& hotkeys) {
    hotkeys.reset();
    if (!json.is_array() || json.size() % 2 != 0) {
        return;
    }
    HotkeyMap read;
    for (std::size_t index = 0; index < json.size(); index += 2) {
        const auto action = decodeJSON<HotkeyAction>(json[index]);
        const auto config = decodeJSON<HotkeyConfig>(json[index + 1]);
        if (!action || !config) {
            return;
        }
        read.insert_or_assign(*action, *config);
    }
    hotkeys = std::move(read);
}

} // namespace quillon
