#pragma once

#include "desktop/storage/SettingsDatabase.h"
#include "platform/UserDefaults.h"

#include <filesystem>
#include <optional>
#include <string>

namespace quillon::desktop {

/// The folder under which a user's programs keep their settings: `$XDG_CONFIG_HOME` when it is an
/// absolute path, else `.config` in the home folder; empty when neither is known.
std::filesystem::path userConfigFolder();

/// The per-user defaults in `<folder>/quillon-mark/settings.sqlite`. An empty folder name stands
/// for none.
///
/// All values are read once; reads are answered from memory, and what another running program
/// writes is not seen. A write reaches the file before it returns, so that it survives the end of
/// the process; one of an equal value is left out.
///
/// 1. A file that is damaged, or is no such database, is set aside under another name with its
///    logs, never deleted, and a new one begun.
/// 2. A folder that cannot be made, read or written means that the session runs from memory,
///    beginning with what can be read there.
/// 3. So does a write that fails later; from then on nothing is written, and reads see every
///    change.
///
/// Each is told in one line on standard error. A number that is not one is kept for the session,
/// and the stored value stays.
///
/// There is no thread, no timer and no lock that outlives a call. Folder and files are the user's
/// alone.
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

    DefaultsTable m_values;
    std::optional<SettingsDatabase> m_database;
};

} // namespace quillon::desktop
