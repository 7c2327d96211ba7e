#include "desktop/storage/StorageTest.h"

#include <sys/stat.h>

#include <cmath>
#include <csignal>
#include <limits>

namespace quillon::test {

namespace {

using SqliteDefaults = StorageTest;

fs::perms permissionsOf(const fs::path& path) {
    return fs::status(path).permissions();
}

constexpr fs::perms kOwnerReadsAndWrites = fs::perms::owner_read | fs::perms::owner_write;

} // namespace

TEST_F(SqliteDefaults, a_key_that_was_never_set_is_absent) {
    const auto defaults = start();
    EXPECT_EQ(defaults.object("lineWidth"), std::nullopt);
    EXPECT_EQ(defaults.string("lineWidth"), std::nullopt);
    EXPECT_EQ(defaults.data("lineWidth"), std::nullopt);
}

TEST_F(SqliteDefaults, every_value_comes_back_in_its_own_type_after_a_restart) {
    {
        auto defaults = start();
        defaults.setBool("true", true);
        defaults.setBool("false", false);
        defaults.setDouble("one", 1);
        defaults.setDouble("zero", 0);
        defaults.setString("digits", "1");
        defaults.setData("bytes", Data{"1"});
    }
    const auto defaults = start();
    EXPECT_EQ(defaults.object("true"), DefaultsValue(true));
    EXPECT_EQ(defaults.object("false"), DefaultsValue(false));
    EXPECT_EQ(defaults.object("one"), DefaultsValue(1.0));
    EXPECT_EQ(defaults.object("zero"), DefaultsValue(0.0));
    EXPECT_EQ(defaults.object("digits"), DefaultsValue(std::string("1")));
    EXPECT_EQ(defaults.object("bytes"), DefaultsValue(Data{"1"}));
}

TEST_F(SqliteDefaults, an_empty_text_and_empty_data_are_not_absent) {
    {
        auto defaults = start();
        defaults.setString("text", "");
        defaults.setData("data", Data{});
    }
    const auto defaults = start();
    EXPECT_EQ(defaults.object("text"), DefaultsValue(std::string()));
    EXPECT_EQ(defaults.object("data"), DefaultsValue(Data{}));
}

TEST_F(SqliteDefaults, every_byte_of_text_and_data_survives) {
    const std::string text = std::string("Grüße ") + '\0' + " 二 '\";--";
    std::string bytes;
    for (int byte = 0; byte < 256 * 400; ++byte) {
        bytes += static_cast<char>(byte & 0xFF);
    }
    {
        auto defaults = start();
        defaults.setString("text", text);
        defaults.setData("data", Data{bytes});
    }
    const auto defaults = start();
    EXPECT_EQ(defaults.string("text"), text);
    EXPECT_EQ(defaults.data("data"), Data{bytes});
}

TEST_F(SqliteDefaults, every_digit_of_a_number_survives) {
    using Limits = std::numeric_limits<double>;
    const std::vector<double> numbers{
        0.1 + 0.2, 1e300,         Limits::denorm_min(), -1.0 / 3,
        1LL << 60, Limits::max(), Limits::infinity(),   -Limits::infinity()};
    for (const double number : numbers) {
        {
            auto defaults = start();
            defaults.setDouble("number", number);
        }
        EXPECT_EQ(start().object("number"), DefaultsValue(number)) << number;
    }
}

TEST_F(SqliteDefaults, a_value_replaces_one_of_another_type) {
    {
        auto defaults = start();
        defaults.setString("key", "text");
        defaults.setDouble("key", 2.5);
        EXPECT_EQ(defaults.object("key"), DefaultsValue(2.5));
    }
    auto defaults = start();
    EXPECT_EQ(defaults.object("key"), DefaultsValue(2.5));
    EXPECT_EQ(defaults.string("key"), std::nullopt);
}

TEST_F(SqliteDefaults, a_number_that_is_none_lasts_for_the_session_and_the_stored_value_stays) {
    const StandardErrorCapture standardError;
    {
        auto defaults = start();
        defaults.setDouble("number", 4);
        defaults.setDouble("number", std::numeric_limits<double>::quiet_NaN());
        defaults.setBool("later", true);
        EXPECT_TRUE(std::isnan(std::get<double>(*defaults.object("number"))));
    }
    const auto defaults = start();
    EXPECT_EQ(defaults.object("number"), DefaultsValue(4.0));
    EXPECT_EQ(defaults.object("later"), DefaultsValue(true));
    EXPECT_TRUE(standardError.lines().empty());
}

TEST_F(SqliteDefaults, keys_differ_by_letter_case_and_may_hold_anything) {
    {
        auto defaults = start();
        defaults.setDouble("key", 1);
        defaults.setDouble("Key", 2);
        defaults.setDouble("", 3);
        defaults.setDouble("a'; DROP TABLE defaults; --", 4);
    }
    const auto defaults = start();
    EXPECT_EQ(defaults.object("key"), DefaultsValue(1.0));
    EXPECT_EQ(defaults.object("Key"), DefaultsValue(2.0));
    EXPECT_EQ(defaults.object(""), DefaultsValue(3.0));
    EXPECT_EQ(defaults.object("a'; DROP TABLE defaults; --"), DefaultsValue(4.0));
}

TEST_F(SqliteDefaults, a_change_survives_a_kill_a_moment_later) {
    const pid_t process = inAnotherProcess([this] {
        auto defaults = start();
        defaults.setDouble("lineWidth", 9.5);
        defaults.setDouble("lineWidth", 12.25);
        ::raise(SIGKILL);
        return true;
    });
    EXPECT_EQ(statusOf(process), 128 + SIGKILL);
    const StandardErrorCapture standardError;
    EXPECT_EQ(start().object("lineWidth"), DefaultsValue(12.25));
    EXPECT_TRUE(standardError.lines().empty());
}

TEST_F(SqliteDefaults, a_kill_between_the_making_of_the_file_and_of_its_table_costs_nothing) {
    layDown("", "");
    const StandardErrorCapture standardError;
    {
        auto defaults = start();
        defaults.setBool("key", true);
    }
    EXPECT_EQ(start().object("key"), DefaultsValue(true));
    EXPECT_TRUE(standardError.lines().empty());
}

TEST_F(SqliteDefaults, an_equal_value_is_not_written_again) {
    auto defaults = start();
    defaults.setDouble("haloSize", 40);
    const auto before = fs::file_size(beside("-wal"));
    defaults.setDouble("haloSize", 40);
    EXPECT_EQ(fs::file_size(beside("-wal")), before);
    defaults.setDouble("haloSize", 41);
    EXPECT_GT(fs::file_size(beside("-wal")), before);
}

TEST_F(SqliteDefaults, an_orderly_end_leaves_one_file) {
    {
        auto defaults = start();
        defaults.setBool("key", true);
    }
    ASSERT_EQ(files().size(), 1U);
    EXPECT_TRUE(fs::exists(file()));
}

TEST_F(SqliteDefaults, folder_and_files_are_the_users_alone_whatever_the_umask) {
    const auto usual = ::umask(0);
    auto defaults = start();
    defaults.setBool("key", true);
    ::umask(usual);
    EXPECT_EQ(permissionsOf(folder()), fs::perms::owner_all);
    EXPECT_EQ(permissionsOf(file()), kOwnerReadsAndWrites);
    EXPECT_EQ(permissionsOf(beside("-wal")), kOwnerReadsAndWrites);
    EXPECT_EQ(permissionsOf(beside("-shm")), kOwnerReadsAndWrites);
}

TEST_F(SqliteDefaults, a_config_folder_that_is_missing_is_made) {
    const fs::path deep = config / "not" / "yet";
    {
        desktop::SqliteDefaults defaults(deep);
        defaults.setBool("key", true);
    }
    EXPECT_EQ(desktop::SqliteDefaults(deep).object("key"), DefaultsValue(true));
}

TEST_F(SqliteDefaults, an_orderly_start_tells_nothing) {
    const StandardErrorCapture standardError;
    { auto defaults = start(); }
    { auto defaults = start(); }
    EXPECT_TRUE(standardError.lines().empty());
}

} // namespace quillon::test
