#include "desktop/storage/StorageTest.h"

#include <sys/resource.h>

#include <csignal>

namespace quillon::test {

namespace {

class UnwritableDefaults : public StorageTest {
protected:
    /// Values are set and read as ever, for this session, and one line says so.
    static void expectSessionInMemory(const fs::path& configFolder) {
        const StandardErrorCapture standardError;
        desktop::SqliteDefaults defaults(configFolder);
        defaults.setDouble("lineWidth", 7);
        defaults.setString("selectedTool", "arrow");
        defaults.setDouble("lineWidth", 8);
        EXPECT_EQ(defaults.object("lineWidth"), DefaultsValue(8.0));
        EXPECT_EQ(defaults.string("selectedTool"), "arrow");
        const auto lines = standardError.lines();
        ASSERT_EQ(lines.size(), 1U);
        EXPECT_NE(lines.front().find("this session only"), std::string::npos) << lines.front();
    }
    /// Lets everybody read what stands in the folder, and nobody write.
    void makeReadOnly() const {
        constexpr auto everybodyReads =
            fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
        constexpr auto everybodyEnters =
            fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
        for (const auto& [name, contents] : files()) {
            fs::permissions(folder() / name, everybodyReads);
        }
        fs::permissions(folder(), everybodyReads | everybodyEnters);
        fs::permissions(config, everybodyEnters, fs::perm_options::add);
    }

    /// A process that does `body`, and fails when that does. The administrator may write
    /// everywhere, so another user does it.
    template <typename Body>
    static pid_t asAnotherUser(Body body) {
        return inAnotherProcess([&] {
            constexpr uid_t nobody = 65534;
            if (::geteuid() == 0 && ::seteuid(nobody) != 0) {
                return false;
            }
            body();
            return !HasFailure();
        });
    }
};

/// No file that this process writes may grow beyond `size` any more, as on a full disk.
void fillDisk(std::uintmax_t size) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{size, RLIM_INFINITY};
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

} // namespace

TEST_F(UnwritableDefaults, a_folder_that_cannot_be_made_means_a_session_in_memory) {
    writeFile(folder(), "a file where the folder should be");
    expectSessionInMemory(config);
    EXPECT_EQ(contentsOf(folder()), "a file where the folder should be");
}

TEST_F(UnwritableDefaults, a_folder_in_the_place_of_the_file_means_a_session_in_memory) {
    fs::create_directories(file());
    expectSessionInMemory(config);
}

TEST_F(UnwritableDefaults, no_config_folder_at_all_means_a_session_in_memory) {
    expectSessionInMemory({});
    EXPECT_FALSE(fs::exists("quillon-mark"));
}

TEST_F(UnwritableDefaults, a_folder_that_may_not_be_written_means_a_session_in_memory) {
    fs::create_directories(folder());
    makeReadOnly();
    const pid_t process = asAnotherUser([this] { expectSessionInMemory(config); });
    EXPECT_EQ(statusOf(process), EXIT_SUCCESS);
    EXPECT_TRUE(fs::is_empty(folder()));
}

TEST_F(UnwritableDefaults, what_was_stored_before_the_folder_could_not_be_written_is_read) {
    {
        auto defaults = start();
        defaults.setString("selectedTool", "arrow");
        defaults.setDouble("lineWidth", 5);
    }
    const std::string before = contentsOf(file());
    makeReadOnly();
    const pid_t process = asAnotherUser([this] {
        EXPECT_EQ(start().string("selectedTool"), "arrow");
        expectSessionInMemory(config);
    });
    EXPECT_EQ(statusOf(process), EXIT_SUCCESS);
    EXPECT_TRUE(contentsOf(file()) == before);
    EXPECT_EQ(files().size(), 1U);
}

TEST_F(UnwritableDefaults, any_name_of_a_folder_that_cannot_be_written_is_understood) {
    config /= "50% #1 ?";
    fs::create_directories(config);
    {
        auto defaults = start();
        defaults.setDouble("lineWidth", 5);
    }
    makeReadOnly();
    fs::permissions(config.parent_path(), fs::perms::group_exec | fs::perms::others_exec,
                    fs::perm_options::add);
    const pid_t process =
        asAnotherUser([this] { EXPECT_EQ(start().object("lineWidth"), DefaultsValue(5.0)); });
    EXPECT_EQ(statusOf(process), EXIT_SUCCESS);
    config = config.parent_path();
}

TEST_F(UnwritableDefaults, damage_where_nothing_can_be_written_means_a_session_in_memory) {
    layDown("", "no database");
    makeReadOnly();
    const pid_t process = asAnotherUser([this] { expectSessionInMemory(config); });
    EXPECT_EQ(statusOf(process), EXIT_SUCCESS);
    EXPECT_EQ(contentsOf(file()), "no database");
}

TEST_F(UnwritableDefaults, a_disk_that_fills_up_later_is_told_once_and_reads_see_the_new_values) {
    const pid_t process = inAnotherProcess([this] {
        auto defaults = start();
        defaults.setDouble("lineWidth", 5);
        fillDisk(fs::file_size(beside("-wal")));
        const StandardErrorCapture standardError;
        defaults.setDouble("lineWidth", 6);
        defaults.setDouble("lineWidth", 7);
        defaults.setBool("isZoomEnabled", true);
        return defaults.object("lineWidth") == DefaultsValue(7.0) &&
               defaults.object("isZoomEnabled") == DefaultsValue(true) &&
               standardError.lines().size() == 1;
    });
    EXPECT_EQ(statusOf(process), EXIT_SUCCESS);
    const StandardErrorCapture standardError;
    const auto defaults = start();
    EXPECT_EQ(defaults.object("lineWidth"), DefaultsValue(5.0));
    EXPECT_EQ(defaults.object("isZoomEnabled"), std::nullopt);
    EXPECT_TRUE(standardError.lines().empty());
}

TEST_F(UnwritableDefaults,
       a_disk_that_is_full_at_the_first_start_leaves_nothing_that_looks_damaged) {
    const pid_t process = inAnotherProcess([this] {
        fillDisk(2048);
        const StandardErrorCapture standardError;
        auto defaults = start();
        defaults.setDouble("lineWidth", 6);
        return defaults.object("lineWidth") == DefaultsValue(6.0) &&
               standardError.lines().size() == 1;
    });
    EXPECT_EQ(statusOf(process), EXIT_SUCCESS);
    const StandardErrorCapture standardError;
    {
        auto defaults = start();
        defaults.setDouble("lineWidth", 6);
    }
    EXPECT_EQ(start().object("lineWidth"), DefaultsValue(6.0));
    EXPECT_TRUE(standardError.lines().empty());
}

} // namespace quillon::test
