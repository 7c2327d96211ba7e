#pragma once

#include "desktop/storage/SettingsDatabase.h"
#include "platform/UserDefaults.h"

#include <filesystem>
#include <optional>
#include <string>

namespace quillon::desktop {

/// The folder under which a user's programs keep their settings: `$XDG_CONFIG_HOME` when it is an
/// absolute path, else `.config` in the home folder.
std::filesystem::path userConfigFolder();

/// The per-user defaults in `<folder>/quillon-mark/settings.sqlite`.
///
/// All values are read once; reads are answered from memory, and what another running program
/// writes is not seen. A write reaches the file before it returns, so that it survives the end of
/// the process; one of an equal value is left out.
///
/// 1. A file that is damaged is set aside under another name, never deleted, and a new one begun.
/// 2. A folder that cannot be written means that the session runs from memory.
/// 3. So does a write that fails later; reads still see the new value.
/// Each of the last two is told in one line on standard error, once.
class SqliteDefaults : public UserDefaults {
public:
    explicit SqliteDefaults(const std::filesystem::path& configFolder);

    void setBool(std::string_view key, bool value) override { set(key, value); }
    void setDouble(std::string_view key, double value) override { set(key, value); }
    void setString(std::string_view key, const std::string& value) override { set(key, value); }
    void setData(std::string_view key, const Data& value) override { set(key, value); }
    std::optional<DefaultsValue> object(std::string_view key) const override;

private:
    void open(const std::filesystem::path& file);
    void set(std::string_view key, DefaultsValue value);
    void goOnFromMemory(const std::string& why);

    DefaultsTable m_values;
    std::optional<SettingsDatabase> m_database;
    bool m_hasToldOfMemory = false;
};

} // namespace quillon::desktop
