#include "model/AppSettings.h"

#include "model/ModelJSON.h"
#include "platform/Host.h"

#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <variant>

namespace quillon {

namespace {

std::optional<bool> convertedToBool(const DefaultsValue& value) {
    if (const auto* boolean = std::get_if<bool>(&value)) {
        return *boolean;
    }
    const auto* number = std::get_if<double>(&value);
    return number && (*number == 0 || *number == 1) ? std::optional(*number == 1) : std::nullopt;
}

std::optional<double> convertedToDouble(const DefaultsValue& value) {
    if (const auto* boolean = std::get_if<bool>(&value)) {
        return *boolean ? 1.0 : 0.0;
    }
    const auto* number = std::get_if<double>(&value);
    return number ? std::optional(*number) : std::nullopt;
}

/// The value that the data at a key encode, or nothing.
template <typename T>
std::optional<T> decodedFrom(const UserDefaults& defaults, SettingsKey key) {
    const auto data = defaults.data(rawValue(key));
    const auto json = data ? parseJSON(data->bytes) : std::nullopt;
    return json ? decodeJSON<T>(*json) : std::nullopt;
}

} // namespace

AppSettings& AppSettings::shared() {
    Host& host = Host::current();
    return host.shared<AppSettings>(
        [&] { return std::shared_ptr<AppSettings>(new AppSettings(host.userDefaults())); });
}

AppSettings::AppSettings(UserDefaults& userDefaults)
    : m_userDefaults(userDefaults) {
    loadSettings();
}

void AppSettings::resetToDefaults() {
    for (auto* setting : m_settings) {
        setting->reset();
    }
}

void AppSettings::loadSettings() {
    for (auto* setting : m_settings) {
        setting->load();
    }
}

template <typename T>
void AppSettings::save(SettingsKey key, const T& value) {
    if constexpr (std::is_same_v<T, bool>) {
        saveBool(key, value);
    } else if constexpr (std::is_same_v<T, double>) {
        saveDouble(key, value);
    } else if constexpr (std::is_same_v<T, Color>) {
        saveColor(key, value);
    } else if constexpr (std::is_same_v<T, std::vector<Color>>) {
        saveColors(key, value);
    } else if constexpr (std::is_same_v<T, HotkeyMap>) {
        saveHotkeys();
    } else if constexpr (RawRepresentable<T>) {
        saveRawRepresentable(key, value);
    } else {
        saveCodable(key, value);
    }
}

template <typename T>
T AppSettings::load(SettingsKey key, const T& fallback) const {
    if constexpr (std::is_same_v<T, bool>) {
        return loadBool(key, fallback);
    } else if constexpr (std::is_same_v<T, double>) {
        return loadDouble(key, fallback);
    } else if constexpr (std::is_same_v<T, Color>) {
        return loadColor(key, fallback);
    } else if constexpr (std::is_same_v<T, std::vector<Color>>) {
        return loadColors(key, fallback);
    } else if constexpr (std::is_same_v<T, HotkeyMap>) {
        return loadHotkeys();
    } else if constexpr (RawRepresentable<T>) {
        return loadRawRepresentable(key, fallback);
    } else {
        return loadCodable(key, fallback);
    }
}

void AppSettings::saveBool(SettingsKey key, bool value) {
    m_userDefaults.setBool(rawValue(key), value);
}

bool AppSettings::loadBool(SettingsKey key, bool fallback) const {
    const auto object = m_userDefaults.object(rawValue(key));
    return object ? convertedToBool(*object).value_or(fallback) : fallback;
}

void AppSettings::saveDouble(SettingsKey key, double value) {
    m_userDefaults.setDouble(rawValue(key), value);
}

double AppSettings::loadDouble(SettingsKey key, double fallback) const {
    const auto object = m_userDefaults.object(rawValue(key));
    return object ? convertedToDouble(*object).value_or(fallback) : fallback;
}

template <RawRepresentable E>
void AppSettings::saveRawRepresentable(SettingsKey key, E value) {
    m_userDefaults.setString(rawValue(key), std::string(rawValue(value)));
}

template <RawRepresentable E>
E AppSettings::loadRawRepresentable(SettingsKey key, E fallback) const {
    const auto raw = m_userDefaults.string(rawValue(key));
    return raw ? fromRawValue<E>(*raw).value_or(fallback) : fallback;
}

void AppSettings::saveColor(SettingsKey key, const Color& color) {
    saveCodable(key, CodableColor(color));
}

Color AppSettings::loadColor(SettingsKey key, const Color& fallback) const {
    const auto stored = decodedFrom<CodableColor>(m_userDefaults, key);
    return stored ? stored->color() : fallback;
}

void AppSettings::saveColors(SettingsKey key, const std::vector<Color>& colors) {
    saveCodable(key, std::vector<CodableColor>(colors.begin(), colors.end()));
}

std::vector<Color> AppSettings::loadColors(SettingsKey key,
                                           const std::vector<Color>& fallback) const {
    const auto stored = decodedFrom<std::vector<CodableColor>>(m_userDefaults, key);
    if (!stored) {
        return fallback;
    }
    std::vector<Color> colors;
    for (const auto& color : *stored) {
        colors.push_back(color.color());
    }
    return colors;
}

template <typename T>
void AppSettings::saveCodable(SettingsKey key, const T& value) {
    if (auto text = serializeJSON(encodeJSON(value))) {
        m_userDefaults.setData(rawValue(key), Data{*std::move(text)});
    }
}

template <typename T>
T AppSettings::loadCodable(SettingsKey key, const T& fallback) const {
    return decodedFrom<T>(m_userDefaults, key).value_or(fallback);
}

void AppSettings::saveHotkeys() {
    saveCodable(SettingsKey::hotkeys, hotkeys.get());
}

HotkeyMap AppSettings::loadHotkeys() const {
    auto stored = decodedFrom<HotkeyMap>(m_userDefaults, SettingsKey::hotkeys);
    if (!stored) {
        return HotkeyConfig::defaults();
    }
    for (auto& [action, config] : *stored) {
        config = HotkeyConfig::migrateLegacyConfig(config, config.action);
    }
    return *std::move(stored);
}

} // namespace quillon
