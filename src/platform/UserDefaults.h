#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace quillon {

/// Binary data, distinct in type from a string.
struct Data {
    std::string bytes;

    friend bool operator==(const Data&, const Data&) = default;
};

/// What a key of the defaults can hold.
using DefaultsValue = std::variant<bool, double, std::string, Data>;

/// The per-user key-value store. A value keeps its type, an absent key differs from any value, and
/// what was set survives the end of the process, however it ends. Main thread only. A write that
/// fails is told to the user by the host, not to the caller: the value then lives for this session.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    virtual void setBool(std::string_view key, bool value) = 0;
    virtual void setDouble(std::string_view key, double value) = 0;
    virtual void setString(std::string_view key, const std::string& value) = 0;
    virtual void setData(std::string_view key, const Data& value) = 0;

    /// The value at the key in the type in which it was set, or nothing when the key is absent.
    virtual std::optional<DefaultsValue> object(std::string_view key) const = 0;

    /// The string at the key, or nothing when there is none or a value of another type.
    std::optional<std::string> string(std::string_view key) const;
    /// The data at the key, or nothing when there is none or a value of another type.
    std::optional<Data> data(std::string_view key) const;
};

} // namespace quillon
