#include "desktop/storage/SqliteDefaults.h"

#include "desktop/storage/DatabaseFiles.h"
#include "desktop/storage/FolderLock.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <utility>
#include <variant>

namespace quillon::desktop {

namespace fs = std::filesystem;

namespace {

constexpr const char* kFolder = "quillon-mark";
constexpr const char* kFile = "settings.sqlite";

using Opened = std::variant<SettingsDatabase, SettingsDatabase::Problem>;

Opened openOrBegin(const fs::path& file) {
    if (hasOrphanedLogs(file)) {
        return SettingsDatabase::Problem::damaged;
    }
    makePrivateFile(file);
    return SettingsDatabase::open(file);
}

bool isDamaged(const Opened& opened) {
    const auto* problem = std::get_if<SettingsDatabase::Problem>(&opened);
    return problem && *problem == SettingsDatabase::Problem::damaged;
}

/// True for the one number that the database does not tell from an absent one.
bool isNotANumber(const DefaultsValue& value) {
    const auto* number = std::get_if<double>(&value);
    return number && std::isnan(*number);
}

fs::path absolutePathIn(const char* variable) {
    const char* value = std::getenv(variable);
    return value && fs::path(value).is_absolute() ? fs::path(value) : fs::path();
}

void tell(const std::string& line) {
    std::fprintf(stderr, "quillon-mark: %s\n", line.c_str());
}

void tellOfMemory(const std::string& why) {
    tell(why + "; changes last for this session only");
}

} // namespace

fs::path userConfigFolder() {
    if (auto config = absolutePathIn("XDG_CONFIG_HOME"); !config.empty()) {
        return config;
    }
    const auto home = absolutePathIn("HOME");
    return home.empty() ? fs::path() : home / ".config";
}

SqliteDefaults::SqliteDefaults(const fs::path& configFolder) {
    const fs::path folder = configFolder / kFolder;
    if (!configFolder.empty() && makePrivateFolder(folder)) {
        open(folder / kFile);
    }
    if (!m_database) {
        tellOfMemory("the settings in \"" + folder.string() + "\" cannot be written");
    }
}

void SqliteDefaults::open(const fs::path& file) {
    // Only one process at a time begins the file, or finds it damaged and moves it.
    const FolderLock lock(file.parent_path());
    auto opened = openOrBegin(file);
    if (isDamaged(opened)) {
        if (const auto aside = setAside(file)) {
            tell("the settings were damaged and start anew; the old file is " + aside->string());
            opened = openOrBegin(file);
        }
    }
    if (auto* database = std::get_if<SettingsDatabase>(&opened)) {
        if (auto values = database->readAll()) {
            m_values = *std::move(values);
            m_database = std::move(*database);
        }
    } else if (!isDamaged(opened)) {
        m_values = SettingsDatabase::readUnchanging(file).value_or(DefaultsTable());
    }
}

std::optional<DefaultsValue> SqliteDefaults::object(std::string_view key) const {
    const auto value = m_values.find(key);
    return value == m_values.end() ? std::nullopt : std::optional(value->second);
}

void SqliteDefaults::set(std::string_view key, DefaultsValue value) {
    const auto present = m_values.find(key);
    if (present != m_values.end() && present->second == value) {
        return;
    }
    if (m_database && !isNotANumber(value) && !m_database->write(key, value)) {
        m_database.reset();
        tellOfMemory("a setting could not be written");
    }
    m_values.insert_or_assign(std::string(key), std::move(value));
}

} // namespace quillon::desktop
