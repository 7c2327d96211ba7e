#include "desktop/storage/SqliteDefaults.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <system_error>
#include <utility>

namespace quillon::desktop {

namespace fs = std::filesystem;

namespace {

constexpr const char* kFolder = "quillon-mark";
constexpr const char* kFile = "settings.sqlite";

/// Makes the folder for the user alone. False when it does not stand afterwards.
bool makeFolder(const fs::path& folder) {
    std::error_code error;
    if (fs::create_directories(folder, error)) {
        fs::permissions(folder, fs::perms::owner_all, error);
    }
    return fs::is_directory(folder, error);
}

/// Makes the file for the user alone, before the database library would make it for everybody.
void makeFile(const fs::path& file) {
    const int descriptor = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor >= 0) {
        ::close(descriptor);
    }
}

std::variant<SettingsDatabase, SettingsDatabase::Problem> openOrBegin(const fs::path& file) {
    makeFile(file);
    return SettingsDatabase::open(file);
}

/// Renames the file, with the logs that belong to it, to the first name that is free. Answers the
/// new name, or nothing when the file could not be moved.
std::optional<fs::path> setAside(const fs::path& file) {
    std::error_code error;
    fs::path aside;
    for (int number = 1; aside.empty() || fs::exists(aside, error); ++number) {
        aside = file;
        aside += ".damaged-" + std::to_string(number);
    }
    fs::rename(file, aside, error);
    if (error) {
        return std::nullopt;
    }
    for (const char* log : {"-wal", "-shm"}) {
        fs::path from = file;
        fs::path to = aside;
        fs::rename(from += log, to += log, error);
    }
    return aside;
}

void tell(const std::string& line) {
    std::fprintf(stderr, "quillon-mark: %s\n", line.c_str());
}

} // namespace

fs::path userConfigFolder() {
    const char* config = std::getenv("XDG_CONFIG_HOME");
    if (config && fs::path(config).is_absolute()) {
        return config;
    }
    const char* home = std::getenv("HOME");
    return fs::path(home ? home : "/") / ".config";
}

SqliteDefaults::SqliteDefaults(const fs::path& configFolder) {
    const fs::path folder = configFolder / kFolder;
    if (makeFolder(folder)) {
        open(folder / kFile);
    }
    if (!m_database) {
        goOnFromMemory(folder.string() + " cannot be written");
    }
}

void SqliteDefaults::open(const fs::path& file) {
    auto opened = openOrBegin(file);
    if (std::holds_alternative<SettingsDatabase::Problem>(opened) &&
        std::get<SettingsDatabase::Problem>(opened) == SettingsDatabase::Problem::damaged) {
        if (const auto aside = setAside(file)) {
            tell("the settings were damaged and start anew; the old file is " + aside->string());
            opened = openOrBegin(file);
        }
    }
    if (auto* database = std::get_if<SettingsDatabase>(&opened)) {
        m_values = database->readAll().value_or(DefaultsTable());
        m_database = std::move(*database);
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
    if (m_database && !m_database->write(key, value)) {
        goOnFromMemory("a setting could not be written");
    }
    m_values.insert_or_assign(std::string(key), std::move(value));
}

void SqliteDefaults::goOnFromMemory(const std::string& why) {
    if (!std::exchange(m_hasToldOfMemory, true)) {
        tell(why + "; changes last for this session only");
    }
}

} // namespace quillon::desktop
