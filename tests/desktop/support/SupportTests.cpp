#include "desktop/support/InputDriver.h"
#include "desktop/support/ProbeWindow.h"
#include "desktop/support/ScreenReader.h"
#include "desktop/support/ScreenSize.h"
#include "desktop/support/VirtualDesktop.h"

#include <gtest/gtest.h>

#include <signal.h>

#include <filesystem>
#include <stdexcept>

namespace quillon::test {
namespace {

constexpr Rgb kBlue{40, 60, 200};
constexpr Rgb kGreen{30, 160, 60};

class Support : public testing::Test {
protected:
    VirtualDesktop desktop{VirtualDesktop::Options{.width = 640, .height = 480}};
    InputDriver input{desktop.connection()};
    ScreenReader screen{desktop.connection()};
    ProbeWindow left{desktop.display(), {0, 0, 300, 400}, kBlue};
    ProbeWindow right{desktop.display(), {320, 0, 300, 400}, kGreen};
};

TEST_F(Support, windows_stand_where_they_were_put_in_their_colours) {
    EXPECT_TRUE(screen.waitForColor({1, 1}, kBlue));
    EXPECT_TRUE(screen.waitForColor({298, 398}, kBlue));
    EXPECT_TRUE(screen.waitForColor({321, 1}, kGreen));
    EXPECT_FALSE(isNear(screen.pixel({310, 200}), kBlue));
    EXPECT_FALSE(isNear(screen.pixel({310, 200}), kGreen));
}

TEST_F(Support, a_click_reaches_the_window_under_the_pointer_and_no_other) {
    input.click({100, 100});
    EXPECT_TRUE(eventually([this] { return left.pressCount() == 1; }));
    EXPECT_EQ(right.pressCount(), 0);
    input.click({400, 100});
    EXPECT_TRUE(eventually([this] { return right.pressCount() == 1; }));
    EXPECT_EQ(left.pressCount(), 1);
}

TEST_F(Support, a_chord_reaches_the_window_that_has_the_keyboard_and_no_other) {
    right.activate();
    ASSERT_TRUE(eventually([this] { return right.hasKeyboard(); }));
    const int before = left.keyCount();
    input.chord({"Super_L", "Shift_L", "s"});
    EXPECT_TRUE(eventually([this] { return right.keyCount() == 3; }));
    left.activate();
    ASSERT_TRUE(eventually([this] { return left.hasKeyboard(); }));
    input.type("Hi");
    EXPECT_TRUE(eventually([&] { return left.keyCount() == before + 3; }));
    EXPECT_EQ(right.keyCount(), 3);
}

TEST_F(Support, a_window_can_fill_the_screen) {
    left.fillScreen();
    EXPECT_TRUE(screen.waitForColor({639, 479}, kBlue));
}

TEST_F(Support, another_workspace_hides_the_windows_of_this_one) {
    ASSERT_TRUE(screen.waitForColor({100, 100}, kBlue));
    desktop.showWorkspace(1);
    EXPECT_TRUE(screen.waitForPixel({100, 100}, [](Rgb seen) { return !isNear(seen, kBlue); }));
    desktop.showWorkspace(0);
    EXPECT_TRUE(screen.waitForColor({100, 100}, kBlue));
}

TEST_F(Support, the_screen_takes_another_size_and_its_old_one_again) {
    changeScreenSize(desktop.connection(), 400, 300);
    EXPECT_TRUE(screen.waitForColor({1, 1}, kBlue));
    EXPECT_THROW(screen.pixel({500, 100}), std::runtime_error);
    changeScreenSize(desktop.connection(), 640, 480);
    EXPECT_NO_THROW(screen.pixel({639, 479}));
}

TEST_F(Support, a_saved_picture_is_a_file_with_something_in_it) {
    const TemporaryFolder folder;
    screen.save(folder.path() + "/screen.png");
    EXPECT_GT(std::filesystem::file_size(folder.path() + "/screen.png"), 500U);
}

TEST(Eventually, a_condition_that_never_holds_ends_the_wait_at_its_bound) {
    EXPECT_FALSE(eventually([] { return false; }, std::chrono::milliseconds(20)));
    EXPECT_TRUE(stays([] { return true; }, std::chrono::milliseconds(20)));
}

TEST(ChildProcess, what_a_child_prints_and_how_it_ends_is_known) {
    ChildProcess child({"sh", "-c", "echo out; echo err >&2; exit 3"}, {{"PATH", "/usr/bin:/bin"}});
    EXPECT_EQ(child.waitForExit(), 3);
    EXPECT_EQ(child.standardOutput(), "out\n");
    EXPECT_EQ(child.standardError(), "err\n");
}

TEST(ChildProcess, a_child_sees_the_environment_it_was_given_and_nothing_else) {
    ChildProcess child({"/usr/bin/env"}, {{"ONLY", "this"}});
    EXPECT_EQ(child.waitForExit(), 0);
    EXPECT_EQ(child.standardOutput(), "ONLY=this\n");
}

TEST(VirtualDesktop, leaves_no_socket_of_its_server_behind) {
    std::string socket;
    {
        const VirtualDesktop desktop;
        socket = "/tmp/.X11-unix/X" + desktop.display().substr(1);
        ASSERT_TRUE(std::filesystem::exists(socket));
    }
    EXPECT_FALSE(std::filesystem::exists(socket));
}

TEST(ChildProcess, a_child_that_overhears_the_request_to_end_ends_nevertheless) {
    pid_t deaf = 0;
    {
        ChildProcess child({"sh", "-c", "trap '' TERM; echo ready; while :; do sleep 0.05; done"},
                           {{"PATH", "/usr/bin:/bin"}});
        ASSERT_TRUE(eventually([&] { return !child.standardOutput().empty(); }));
        deaf = child.pid();
    }
    EXPECT_NE(kill(deaf, 0), 0);
}

TEST(ChildProcess, a_child_that_ended_by_a_signal_answers_it) {
    ChildProcess child({"sleep", "60"}, {{"PATH", "/usr/bin:/bin"}});
    EXPECT_TRUE(child.isRunning());
    child.sendSignal(SIGKILL);
    EXPECT_EQ(child.waitForExit(), 128 + SIGKILL);
}

} // namespace
} // namespace quillon::test
