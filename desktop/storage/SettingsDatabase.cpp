#include "desktop/storage/SettingsDatabase.h"

#include <cstddef>
#include <vector>

namespace quillon::desktop {

namespace {

// Another process may hold the file for the moment of a write.
constexpr int kBusyTimeoutMilliseconds = 2000;

// The database keeps the text of its schema, and that text is compared with this one.
constexpr const char* kSchema = R"(CREATE TABLE defaults (
    key     TEXT PRIMARY KEY NOT NULL,
    boolean INTEGER CHECK (boolean IN (0, 1)),
    number  REAL,
    string  TEXT,
    data    BLOB,
    CHECK ((boolean IS NOT NULL) + (number IS NOT NULL) + (string IS NOT NULL)
           + (data IS NOT NULL) = 1)
) STRICT, WITHOUT ROWID)";

constexpr const char* kSelectSchema = "SELECT sql FROM sqlite_schema";
constexpr const char* kCheck = "PRAGMA integrity_check";
constexpr const char* kSelect = "SELECT key, boolean, number, string, data FROM defaults";
constexpr const char* kUpsert =
    "INSERT OR REPLACE INTO defaults (key, boolean, number, string, data)"
    " VALUES (?1, ?2, ?3, ?4, ?5)";

enum Column { keyColumn, booleanColumn, numberColumn, stringColumn, dataColumn };

bool execute(sqlite3* database, const char* sql) {
    return sqlite3_exec(database, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

SqliteStatement prepare(sqlite3* database, const char* sql) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v3(database, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    return SqliteStatement(statement);
}

SettingsDatabase::Problem problemOf(sqlite3* database) {
    switch (sqlite3_errcode(database)) {
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
    case SQLITE_ERROR:
        return SettingsDatabase::Problem::damaged;
    default:
        return SettingsDatabase::Problem::unavailable;
    }
}

std::string bytesAt(sqlite3_stmt* row, int column) {
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(row, column));
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(row, column));
    return bytes ? std::string(bytes, size) : std::string();
}

using Texts = std::vector<std::string>;

/// What `kCheck` answers of a file without a fault.
const Texts kSound{"ok"};

/// The first column of all rows of a query, or nothing when it fails.
std::optional<Texts> textsOf(sqlite3* database, const char* sql) {
    const SqliteStatement query = prepare(database, sql);
    if (!query) {
        return std::nullopt;
    }
    Texts texts;
    int step = sqlite3_step(query.get());
    for (; step == SQLITE_ROW; step = sqlite3_step(query.get())) {
        texts.push_back(bytesAt(query.get(), 0));
    }
    return step == SQLITE_DONE ? std::optional(std::move(texts)) : std::nullopt;
}

/// Whether the log is taken over into the file, and goes, when the last connection closes.
void setKeepsLogOnClose(sqlite3* database, bool keeps) {
    sqlite3_db_config(database, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, keeps ? 1 : 0, nullptr);
}

/// Makes the table in an empty file. There is nothing in it to lose yet, so this does not wait for
/// the disk.
bool begin(sqlite3* database) {
    return execute(database, "PRAGMA synchronous = OFF; PRAGMA journal_mode = WAL") &&
           execute(database, kSchema);
}

/// The name by which a file is opened that nobody changes: no log has to stand beside it.
std::string unchangingFile(const std::filesystem::path& file) {
    std::string name = "file://";
    for (const char character : file.string()) {
        switch (character) {
        case '%':
            name += "%25";
            break;
        case '?':
            name += "%3F";
            break;
        case '#':
            name += "%23";
            break;
        default:
            name += character;
        }
    }
    return name + "?immutable=1";
}

/// What is wrong with the file, if anything; an empty one is begun.
std::optional<SettingsDatabase::Problem> examine(sqlite3* database) {
    const auto faults = textsOf(database, kCheck);
    const auto schema = faults ? textsOf(database, kSelectSchema) : std::nullopt;
    if (!schema) {
        return problemOf(database);
    }
    const bool isEmpty = schema->empty();
    if (*faults != kSound || (!isEmpty && *schema != Texts{kSchema})) {
        return SettingsDatabase::Problem::damaged;
    }
    const bool isReady =
        (!isEmpty || begin(database)) &&
        execute(database, "PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL");
    return isReady ? std::nullopt : std::optional(problemOf(database));
}

std::optional<DefaultsValue> valueAt(sqlite3_stmt* row) {
    const auto isSet = [row](int column) {
        return sqlite3_column_type(row, column) != SQLITE_NULL;
    };
    if (isSet(booleanColumn)) {
        return sqlite3_column_int(row, booleanColumn) != 0;
    }
    if (isSet(numberColumn)) {
        return sqlite3_column_double(row, numberColumn);
    }
    if (isSet(stringColumn)) {
        return bytesAt(row, stringColumn);
    }
    if (isSet(dataColumn)) {
        return Data{bytesAt(row, dataColumn)};
    }
    return std::nullopt;
}

/// All rows, or nothing when they cannot be read.
std::optional<DefaultsTable> tableIn(sqlite3* database) {
    const SqliteStatement select = prepare(database, kSelect);
    if (!select) {
        return std::nullopt;
    }
    DefaultsTable table;
    int step = sqlite3_step(select.get());
    for (; step == SQLITE_ROW; step = sqlite3_step(select.get())) {
        if (auto value = valueAt(select.get())) {
            table.insert_or_assign(bytesAt(select.get(), keyColumn), *std::move(value));
        }
    }
    return step == SQLITE_DONE ? std::optional(std::move(table)) : std::nullopt;
}

/// Binds a value to the parameter of its type; the others stay null.
struct BindValue {
    sqlite3_stmt* statement;

    void operator()(bool value) const {
        sqlite3_bind_int(statement, booleanColumn + 1, value ? 1 : 0);
    }
    void operator()(double value) const { sqlite3_bind_double(statement, numberColumn + 1, value); }
    void operator()(const std::string& value) const {
        sqlite3_bind_text(statement, stringColumn + 1, value.data(), static_cast<int>(value.size()),
                          SQLITE_STATIC);
    }
    void operator()(const Data& value) const {
        // An empty blob is not null only when it has an address.
        const char* bytes = value.bytes.empty() ? "" : value.bytes.data();
        sqlite3_bind_blob(statement, dataColumn + 1, bytes, static_cast<int>(value.bytes.size()),
                          SQLITE_STATIC);
    }
};

} // namespace

std::variant<SettingsDatabase, SettingsDatabase::Problem>
SettingsDatabase::open(const std::filesystem::path& file) {
    sqlite3* raw = nullptr;
    const int opened =
        sqlite3_open_v2(file.c_str(), &raw, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    SqliteDatabase database(raw);
    if (opened != SQLITE_OK) {
        return Problem::unavailable;
    }
    sqlite3_busy_timeout(raw, kBusyTimeoutMilliseconds);
    // The log of a file that turns out to be damaged is kept beside it.
    setKeepsLogOnClose(raw, true);
    if (const auto problem = examine(raw)) {
        return *problem;
    }
    SqliteStatement upsert = prepare(raw, kUpsert);
    if (!upsert) {
        return problemOf(raw);
    }
    setKeepsLogOnClose(raw, false);
    return SettingsDatabase(std::move(database), std::move(upsert));
}

std::optional<DefaultsTable> SettingsDatabase::readUnchanging(const std::filesystem::path& file) {
    sqlite3* raw = nullptr;
    const int opened =
        sqlite3_open_v2(unchangingFile(file).c_str(), &raw,
                        SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX, nullptr);
    const SqliteDatabase database(raw);
    const bool isSound = opened == SQLITE_OK && textsOf(raw, kCheck) == kSound &&
                         textsOf(raw, kSelectSchema) == Texts{kSchema};
    return isSound ? tableIn(raw) : std::nullopt;
}

std::optional<DefaultsTable> SettingsDatabase::readAll() const {
    return tableIn(m_database.get());
}

bool SettingsDatabase::write(std::string_view key, const DefaultsValue& value) const {
    sqlite3_stmt* statement = m_upsert.get();
    sqlite3_clear_bindings(statement);
    sqlite3_bind_text(statement, keyColumn + 1, key.data(), static_cast<int>(key.size()),
                      SQLITE_STATIC);
    std::visit(BindValue{statement}, value);
    const int step = sqlite3_step(statement);
    sqlite3_reset(statement);
    return step == SQLITE_DONE;
}

} // namespace quillon::desktop
