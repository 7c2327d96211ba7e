#pragma once

#include "platform/UserDefaults.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace quillon::test {

/// Defaults in memory that count every write.
class FakeDefaults : public UserDefaults {
public:
    void setBool(std::string_view key, bool value) override { set(key, value); }
    void setDouble(std::string_view key, double value) override { set(key, value); }
    void setString(std::string_view key, const std::string& value) override { set(key, value); }
    void setData(std::string_view key, const Data& value) override { set(key, value); }

    std::optional<DefaultsValue> object(std::string_view key) const override {
        const auto value = values.find(key);
        return value == values.end() ? std::nullopt : std::optional(value->second);
    }

    std::map<std::string, DefaultsValue, std::less<>> values;
    /// The keys written, in order.
    std::vector<std::string> writes;

private:
    void set(std::string_view key, DefaultsValue value) {
        values.insert_or_assign(std::string(key), std::move(value));
        writes.emplace_back(key);
    }
};

} // namespace quillon::test
