#include "platform/UserDefaults.h"

namespace quillon {

namespace {

template <typename T>
std::optional<T> valueOf(std::optional<DefaultsValue> object) {
    if (!object || !std::holds_alternative<T>(*object)) {
        return std::nullopt;
    }
    return std::get<T>(*std::move(object));
}

} // namespace

std::optional<std::string> UserDefaults::string(std::string_view key) const {
    return valueOf<std::string>(object(key));
}

std::optional<Data> UserDefaults::data(std::string_view key) const {
    return valueOf<Data>(object(key));
}

} // namespace quillon
