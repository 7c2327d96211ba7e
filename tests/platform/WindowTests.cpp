#include "support/FakeHost.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace quillon::test {

namespace {

class WindowTest : public testing::Test {
protected:
    struct Controls : ControlsView {
        explicit Controls(int& disappearances)
            : m_disappearances(disappearances) {}
        void onDisappear() override { ++m_disappearances; }

    private:
        int& m_disappearances;
    };

    std::unique_ptr<Window> makeWindow() const {
        return std::make_unique<Window>(CGRect{10, 20, 300, 200}, WindowStyleMask::borderless,
                                        BackingStoreType::buffered, false);
    }

    FakeHost host;
};

struct AppearingView : ContentView {
    void onAppear() override { ++appearances; }
    void layout(CGSize, CGFloat) override {}
    Damage takeDamage() override { return {}; }
    void paint(GraphicsContext&, const CGRect&) override {}

    int appearances = 0;
};

using Calls = std::vector<std::string>;

} // namespace

TEST_F(WindowTest, the_application_knows_its_windows_in_order_of_their_making) {
    const auto first = makeWindow();
    auto second = makeWindow();
    EXPECT_EQ(host.application.windows(), (std::vector{first.get(), second.get()}));
    second.reset();
    EXPECT_EQ(host.application.windows(), std::vector{first.get()});
}

TEST_F(WindowTest, what_was_set_can_be_read_back) {
    const auto window = makeWindow();
    window->setOpaque(false);
    window->setBackgroundColor(Color::clear);
    window->setLevel(NSFloatingWindowLevel);
    window->setCollectionBehavior(NSWindowCollectionBehavior::canJoinAllSpaces);
    window->setIgnoresMouseEvents(true);
    window->setIdentifier("overlay");
    EXPECT_FALSE(window->isOpaque());
    EXPECT_EQ(window->backgroundColor(), Color::clear);
    EXPECT_EQ(window->level(), 3);
    EXPECT_EQ(window->collectionBehavior(), 1U);
    EXPECT_TRUE(window->ignoresMouseEvents());
    EXPECT_EQ(window->identifier(), "overlay");
}

TEST_F(WindowTest, a_borderless_window_does_not_take_the_keyboard_of_itself) {
    EXPECT_FALSE(makeWindow()->canBecomeKeyWindow());
}

TEST_F(WindowTest, a_frame_is_kept_and_handed_on) {
    const auto window = makeWindow();
    window->setFrame({1, 2, 30, 40}, true);
    EXPECT_EQ(window->frame(), (CGRect{1, 2, 30, 40}));
    EXPECT_EQ(window->contentBounds(), (CGRect{0, 0, 30, 40}));
    EXPECT_EQ(host.windows.calls, Calls{"frame"});
}

TEST_F(WindowTest, a_frame_that_changes_nothing_displays_the_window_anew_if_that_is_asked_for) {
    const auto window = makeWindow();
    window->setFrame({1, 2, 30, 40}, true);
    window->setFrame({1, 2, 30, 40}, true);
    EXPECT_EQ(host.windows.calls, (Calls{"frame", "frame", "display"}));
    window->setFrame({1, 2, 30, 40}, false);
    EXPECT_EQ(host.windows.calls, (Calls{"frame", "frame", "display", "frame"}));
}

TEST_F(WindowTest, it_comes_on_screen_and_leaves_it) {
    const auto window = makeWindow();
    EXPECT_FALSE(window->isVisible());
    window->orderFrontRegardless();
    EXPECT_TRUE(window->isVisible());
    window->orderOut();
    EXPECT_FALSE(window->isVisible());
    window->makeKeyAndOrderFront();
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(host.windows.calls, (Calls{"orderFront", "orderOut", "makeKeyAndOrderFront"}));
}

TEST_F(WindowTest, its_view_is_told_each_time_it_appears) {
    const auto window = makeWindow();
    auto view = std::make_unique<AppearingView>();
    const int& appearances = view->appearances;
    window->setContentView(std::make_shared<HostingView>(std::move(view)));
    EXPECT_EQ(appearances, 0);
    window->orderFrontRegardless();
    window->orderFrontRegardless();
    EXPECT_EQ(appearances, 1);
    window->orderOut();
    window->makeKeyAndOrderFront();
    EXPECT_EQ(appearances, 2);
}

TEST_F(WindowTest, closed_it_is_off_the_screen_and_its_owner_still_has_it) {
    const auto window = makeWindow();
    window->orderFrontRegardless();
    window->close();
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(host.windows.calls.back(), "orderOut");
    EXPECT_EQ(host.application.windows(), std::vector{window.get()});
}

// Titled windows.

TEST_F(WindowTest, a_window_with_a_title_takes_the_keyboard) {
    const auto style = WindowStyleMask::titled | WindowStyleMask::closable;
    const Window window({0, 0, 300, 200}, style, BackingStoreType::buffered, false);
    EXPECT_TRUE(window.canBecomeKeyWindow());
    EXPECT_TRUE(contains(window.styleMask(), WindowStyleMask::closable));
    EXPECT_FALSE(contains(window.styleMask(), WindowStyleMask::resizable));
}

TEST_F(WindowTest, controls_are_kept_and_handed_on) {
    const auto window = makeWindow();
    int disappearances = 0;
    const auto controller =
        std::make_shared<HostingController>(std::make_unique<Controls>(disappearances));
    window->setContentViewController(controller);
    EXPECT_EQ(window->contentViewController(), controller);
    EXPECT_EQ(host.windows.calls, Calls{"contentViewController"});
    EXPECT_EQ(disappearances, 0);
}

TEST_F(WindowTest, the_centre_leaves_half_as_much_room_above_the_window_as_below) {
    host.screens.all = {{{0, 0, 1920, 1080}, {0, 0, 1920, 1050}, 1, "Screen"}};
    const auto window = makeWindow();
    window->setFrame({0, 0, 600, 450}, false);
    window->center();
    EXPECT_EQ(window->frame(), (CGRect{660, 400, 600, 450}));
}

TEST_F(WindowTest, the_centre_is_that_of_the_main_screen_wherever_it_stands) {
    host.screens.all = {{{-1000, 100, 800, 600}, {-1000, 100, 800, 600}, 1, "Left"}};
    const auto window = makeWindow();
    window->center();
    EXPECT_EQ(window->frame().midX(), -600);
}

TEST_F(WindowTest, without_a_screen_there_is_no_centre) {
    host.screens.all.clear();
    const auto window = makeWindow();
    window->center();
    EXPECT_EQ(window->frame(), (CGRect{10, 20, 300, 200}));
}

TEST_F(WindowTest, a_close_takes_it_off_the_screen_and_then_announces_itself) {
    auto window = makeWindow();
    int disappearances = 0;
    window->setContentViewController(
        std::make_shared<HostingController>(std::make_unique<Controls>(disappearances)));
    window->makeKeyAndOrderFront();
    const Window* closed = nullptr;
    const auto observed = host.notificationCenter().addObserver(
        NSWindowWillCloseNotification, [&](const Notification& notification) {
            closed = window.get();
            EXPECT_EQ(notification.object, window.get());
            EXPECT_FALSE(window->isVisible());
            EXPECT_EQ(disappearances, 1);
        });
    window->close();
    EXPECT_EQ(closed, window.get());
    EXPECT_EQ(host.windows.calls.back(), "orderOut");
}

TEST_F(WindowTest, whoever_hears_of_the_close_may_destroy_the_window) {
    auto window = makeWindow();
    const auto observed = host.notificationCenter().addObserver(
        NSWindowWillCloseNotification, [&](const Notification&) { window.reset(); });
    window->close();
    EXPECT_FALSE(window);
    EXPECT_TRUE(host.application.windows().empty());
}

} // namespace quillon::test
