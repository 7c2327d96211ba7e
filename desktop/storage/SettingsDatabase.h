#pragma once

#include "desktop/storage/SqliteHandles.h"
#include "platform/UserDefaults.h"

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace quillon::desktop {

using DefaultsTable = std::map<std::string, DefaultsValue, std::less<>>;

/// The file in which the defaults stand: one table with a column for each type, of which every row
/// fills exactly one. It is written through a log, so that a change survives the end of the process
/// at any moment, and two processes may hold it at once. Two may not open it at once: the caller
/// keeps them apart.
class SettingsDatabase {
public:
    /// Why a database could not be opened.
    enum class Problem {
        /// The file is no such database, or is damaged.
        damaged,
        /// The place cannot be read or written.
        unavailable,
    };

    /// Opens a file that exists. An empty one is begun; any other is examined as a whole, which is
    /// quick since it is small.
    static std::variant<SettingsDatabase, Problem> open(const std::filesystem::path& file);

    /// All rows of a database in a place where nothing can be written, which `open` needs; nothing
    /// when there is none, or when it is damaged. What a log beside it still holds is left out.
    static std::optional<DefaultsTable> readUnchanging(const std::filesystem::path& file);

    /// All rows, or nothing when they cannot be read.
    std::optional<DefaultsTable> readAll() const;

    /// False when the value could not be written, as a number that is not one cannot.
    bool write(std::string_view key, const DefaultsValue& value) const;

private:
    SettingsDatabase(SqliteDatabase database, SqliteStatement upsert)
        : m_database(std::move(database))
        , m_upsert(std::move(upsert)) {}

    SqliteDatabase m_database;
    SqliteStatement m_upsert;
};

} // namespace quillon::desktop
