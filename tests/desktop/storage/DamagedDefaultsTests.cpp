#include "desktop/storage/SqliteHandles.h"
#include "desktop/storage/StorageTest.h"

#include <algorithm>

namespace quillon::test {

namespace {

constexpr const char* kNoDatabase = "This is no database, whatever it is.";

class DamagedDefaults : public StorageTest {
protected:
    /// A sound database with one value, closed.
    std::string soundDatabase() const {
        {
            auto defaults = start();
            defaults.setString("selectedTool", "arrow");
        }
        return contentsOf(file());
    }

    /// A database that somebody else made.
    void makeForeignDatabase(const std::string& sql) const {
        fs::create_directories(folder());
        sqlite3* raw = nullptr;
        ASSERT_EQ(sqlite3_open(file().c_str(), &raw), SQLITE_OK);
        const desktop::SqliteDatabase database(raw);
        ASSERT_EQ(sqlite3_exec(raw, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK);
    }

    /// Starts from nothing, keeps what is set from now on, and tells the user in one line.
    void expectNewBeginning() const {
        const StandardErrorCapture standardError;
        {
            auto defaults = start();
            EXPECT_EQ(defaults.object("selectedTool"), std::nullopt);
            defaults.setDouble("lineWidth", 7);
        }
        EXPECT_EQ(start().object("lineWidth"), DefaultsValue(7.0));
        const auto lines = standardError.lines();
        ASSERT_EQ(lines.size(), 1U);
        EXPECT_NE(lines.front().find(".damaged-"), std::string::npos) << lines.front();
    }
};

} // namespace

TEST_F(DamagedDefaults, a_file_that_is_no_database_is_set_aside_unchanged) {
    layDown("", kNoDatabase);
    expectNewBeginning();
    EXPECT_EQ(contentsOf(beside(".damaged-1")), kNoDatabase);
}

TEST_F(DamagedDefaults, an_earlier_file_that_was_set_aside_is_never_overwritten) {
    layDown("", "first");
    expectNewBeginning();
    layDown("", "second");
    expectNewBeginning();
    layDown("", "third");
    expectNewBeginning();
    EXPECT_EQ(contentsOf(beside(".damaged-1")), "first");
    EXPECT_EQ(contentsOf(beside(".damaged-2")), "second");
    EXPECT_EQ(contentsOf(beside(".damaged-3")), "third");
}

TEST_F(DamagedDefaults, a_log_that_was_set_aside_alone_takes_its_name_too) {
    layDown(".damaged-1-wal", "an earlier log");
    layDown("", kNoDatabase);
    layDown("-wal", "a later log");
    expectNewBeginning();
    EXPECT_EQ(contentsOf(beside(".damaged-1-wal")), "an earlier log");
    EXPECT_EQ(contentsOf(beside(".damaged-2")), kNoDatabase);
    EXPECT_EQ(contentsOf(beside(".damaged-2-wal")), "a later log");
}

TEST_F(DamagedDefaults, the_logs_of_a_damaged_file_go_with_it_unchanged) {
    layDown("", kNoDatabase);
    layDown("-wal", "what was the log");
    layDown("-shm", "what was its index");
    expectNewBeginning();
    EXPECT_EQ(contentsOf(beside(".damaged-1")), kNoDatabase);
    EXPECT_EQ(contentsOf(beside(".damaged-1-wal")), "what was the log");
    // The index is made anew from the log whenever it is needed; only the file has to go along.
    EXPECT_TRUE(fs::exists(beside(".damaged-1-shm")));
}

TEST_F(DamagedDefaults, logs_without_their_file_are_set_aside_and_not_deleted) {
    layDown("-wal", "a log of nothing");
    layDown("-shm", "an index of nothing");
    expectNewBeginning();
    EXPECT_EQ(contentsOf(beside(".damaged-1-wal")), "a log of nothing");
    EXPECT_EQ(contentsOf(beside(".damaged-1-shm")), "an index of nothing");
}

TEST_F(DamagedDefaults, a_log_of_garbage_beside_a_sound_file_costs_nothing) {
    soundDatabase();
    layDown("-wal", std::string(5000, 'x'));
    layDown("-shm", std::string(32768, 'x'));
    EXPECT_EQ(start().string("selectedTool"), "arrow");
}

TEST_F(DamagedDefaults, a_file_cut_short_anywhere_is_read_whole_or_set_aside_whole) {
    const std::string whole = soundDatabase();
    ASSERT_GE(whole.size(), 8192U);
    int setAside = 0;
    for (std::size_t length = 24; length < whole.size(); length += 487) {
        fs::remove_all(folder());
        layDown("", whole.substr(0, length));
        const StandardErrorCapture standardError;
        const auto tool = start().string("selectedTool");
        EXPECT_EQ(tool.has_value(), standardError.lines().empty()) << length;
        if (!tool) {
            ++setAside;
            EXPECT_TRUE(contentsOf(beside(".damaged-1")) == whole.substr(0, length)) << length;
        }
    }
    EXPECT_GT(setAside, 10);
}

TEST_F(DamagedDefaults, a_page_of_garbage_is_found_at_the_start) {
    std::string pages = soundDatabase();
    std::fill(pages.begin() + 4096, pages.begin() + 8192, '\x5A');
    layDown("", pages);
    expectNewBeginning();
    EXPECT_TRUE(contentsOf(beside(".damaged-1")) == pages);
}

TEST_F(DamagedDefaults, a_database_of_somebody_else_is_set_aside_and_not_added_to) {
    makeForeignDatabase("CREATE TABLE bookmarks (url TEXT)");
    const std::string foreign = contentsOf(file());
    expectNewBeginning();
    EXPECT_TRUE(contentsOf(beside(".damaged-1")) == foreign);
}

TEST_F(DamagedDefaults, a_table_with_other_columns_is_set_aside) {
    makeForeignDatabase("CREATE TABLE defaults (key TEXT PRIMARY KEY, value)");
    expectNewBeginning();
}

TEST_F(DamagedDefaults, a_table_that_would_take_a_text_for_a_number_is_set_aside) {
    makeForeignDatabase(
        "CREATE TABLE defaults (key TEXT PRIMARY KEY NOT NULL, boolean INTEGER, number REAL,"
        " string TEXT, data BLOB);"
        "INSERT INTO defaults (key, number) VALUES ('selectedTool', 'arrow')");
    expectNewBeginning();
}

TEST_F(DamagedDefaults, a_further_table_is_no_schema_of_ours) {
    soundDatabase();
    makeForeignDatabase("CREATE TABLE bookmarks (url TEXT)");
    expectNewBeginning();
}

} // namespace quillon::test
