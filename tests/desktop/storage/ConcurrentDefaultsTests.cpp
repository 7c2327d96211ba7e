#include "desktop/storage/StorageTest.h"

#include <array>
#include <csignal>

namespace quillon::test {

namespace {

constexpr int kProcesses = 4;
constexpr int kWrites = 100;

/// Lets processes that were forked earlier go on, all at one moment. A connection must not be
/// carried into another process, so they are forked before anything is opened.
class Gate {
public:
    Gate() { m_isMade = ::pipe(m_ends.data()) == 0; }
    ~Gate() {
        open();
        ::close(m_ends[0]);
    }
    Gate(const Gate&) = delete;
    Gate& operator=(const Gate&) = delete;

    void open() {
        if (std::exchange(m_isMade, false)) {
            ::close(m_ends[1]);
        }
    }
    /// In the other process: until the gate is open. False when there is none.
    bool wait() {
        const bool isMade = m_isMade;
        open();
        char byte = 0;
        // Nothing is ever sent: the read ends when the last writer has closed its end.
        return isMade && ::read(m_ends[0], &byte, 1) == 0;
    }

private:
    std::array<int, 2> m_ends{};
    bool m_isMade;
};

class ConcurrentDefaults : public StorageTest {
protected:
    /// Opens the defaults in several processes at one moment, each of which does `body`.
    template <typename Body>
    void atOnce(Body body) {
        Gate gate;
        std::vector<pid_t> processes;
        for (int number = 0; number < kProcesses; ++number) {
            processes.push_back(inAnotherProcess([&] {
                if (!gate.wait()) {
                    return false;
                }
                auto defaults = start();
                return body(defaults, number);
            }));
        }
        gate.open();
        for (const pid_t process : processes) {
            EXPECT_EQ(statusOf(process), EXIT_SUCCESS);
        }
    }

    static std::string key(int process, int write) {
        return "key " + std::to_string(process) + ' ' + std::to_string(write);
    }

    void writeAtOnce() {
        atOnce([](desktop::SqliteDefaults& defaults, int process) {
            for (int write = 0; write < kWrites; ++write) {
                defaults.setDouble(key(process, write), write);
                defaults.setDouble("shared", process);
            }
            return true;
        });
    }

    void expectAllWritten() const {
        const auto defaults = start();
        for (int process = 0; process < kProcesses; ++process) {
            for (int write = 0; write < kWrites; ++write) {
                EXPECT_EQ(defaults.object(key(process, write)), DefaultsValue(double(write)))
                    << key(process, write);
            }
        }
        EXPECT_TRUE(defaults.object("shared"));
    }
};

} // namespace

TEST_F(ConcurrentDefaults, several_processes_begin_and_write_one_database) {
    writeAtOnce();
    const StandardErrorCapture standardError;
    expectAllWritten();
    EXPECT_TRUE(standardError.lines().empty());
    EXPECT_EQ(files().size(), 1U);
}

TEST_F(ConcurrentDefaults, several_processes_find_a_damaged_database_and_one_sets_it_aside) {
    layDown("", "no database");
    writeAtOnce();
    expectAllWritten();
    EXPECT_EQ(contentsOf(beside(".damaged-1")), "no database");
    EXPECT_EQ(files().size(), 2U);
}

TEST_F(ConcurrentDefaults, a_process_that_is_killed_does_not_disturb_the_other) {
    Gate gate;
    const pid_t process = inAnotherProcess([&] {
        if (gate.wait()) {
            auto other = start();
            other.setDouble("its", 2);
            ::raise(SIGKILL);
        }
        return false;
    });
    {
        auto defaults = start();
        defaults.setDouble("mine", 1);
        gate.open();
        EXPECT_EQ(statusOf(process), 128 + SIGKILL);
        defaults.setDouble("mine", 3);
    }
    const auto later = start();
    EXPECT_EQ(later.object("mine"), DefaultsValue(3.0));
    EXPECT_EQ(later.object("its"), DefaultsValue(2.0));
}

TEST_F(ConcurrentDefaults, what_another_process_writes_is_not_seen_in_this_session) {
    Gate gate;
    const pid_t process = inAnotherProcess([&] {
        if (!gate.wait()) {
            return false;
        }
        auto other = start();
        other.setDouble("its", 2);
        return true;
    });
    {
        const auto defaults = start();
        gate.open();
        EXPECT_EQ(statusOf(process), EXIT_SUCCESS);
        EXPECT_EQ(defaults.object("its"), std::nullopt);
    }
    EXPECT_EQ(start().object("its"), DefaultsValue(2.0));
}

} // namespace quillon::test
