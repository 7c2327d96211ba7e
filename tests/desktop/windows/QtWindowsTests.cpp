#include "desktop/qt/QtWindows.h"
#include "desktop/x11/XcbHandles.h"
#include "support/FakePorts.h"

#include <gtest/gtest.h>

#include <QGuiApplication>

namespace quillon::test {
namespace {

using namespace desktop;

xcb_connection_t* toolkitConnection() {
    return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
}

/// The place on a screen of 900 by 600 pixels of what stands 100 points from its left and its lower
/// edge, and is 200 wide and 150 high.
constexpr CGRect kFrame{100, 100, 200, 150};
constexpr xcb_rectangle_t kPlace{100, 350, 200, 150};

class QtWindowsTest : public testing::Test {
protected:
    static Host::Ports with(FakePorts& fakes, Windows& windows) {
        Host::Ports chosen = fakes.ports();
        chosen.windows = windows;
        return chosen;
    }
    static std::unique_ptr<Window> makeWindow(bool isOpaque) {
        auto window = std::make_unique<Window>(kFrame, WindowStyleMask::borderless,
                                               BackingStoreType::buffered, false);
        window->setOpaque(isOpaque);
        window->setBackgroundColor(isOpaque ? Color::black : Color::clear);
        window->setIgnoresMouseEvents(true);
        return window;
    }

    FakePorts fakes;
    QtWindows windows{toolkitConnection(), fakes.application, {}};
    Host host{with(fakes, windows)};
};

TEST_F(QtWindowsTest, an_opaque_window_hides_what_lies_within_it_and_nothing_that_reaches_beyond) {
    const auto window = makeWindow(true);
    window->orderFrontRegardless();
    EXPECT_TRUE(windows.hide(kPlace));
    EXPECT_TRUE(windows.hide({150, 400, 1, 1}));
    EXPECT_FALSE(windows.hide({99, 350, 200, 150}));
    EXPECT_FALSE(windows.hide({100, 349, 200, 150}));
    EXPECT_FALSE(windows.hide({100, 350, 201, 150}));
    EXPECT_FALSE(windows.hide({100, 350, 200, 151}));
    EXPECT_FALSE(windows.hide({600, 100, 10, 10}));
}

TEST_F(QtWindowsTest, nothing_is_hidden_before_a_window_comes_and_after_it_has_gone) {
    auto window = makeWindow(true);
    EXPECT_FALSE(windows.hide(kPlace));
    window->orderFrontRegardless();
    ASSERT_TRUE(windows.hide(kPlace));
    window->orderOut();
    EXPECT_FALSE(windows.hide(kPlace));
    window->orderFrontRegardless();
    ASSERT_TRUE(windows.hide(kPlace));
    window.reset();
    EXPECT_FALSE(windows.hide(kPlace));
}

TEST_F(QtWindowsTest, a_translucent_window_hides_nothing) {
    const auto window = makeWindow(false);
    window->orderFrontRegardless();
    EXPECT_FALSE(windows.hide(kPlace));
}

TEST_F(QtWindowsTest, a_window_hides_what_lies_where_it_has_moved_to) {
    const auto window = makeWindow(true);
    window->orderFrontRegardless();
    window->setFrame({400, 100, 200, 150}, true);
    EXPECT_FALSE(windows.hide(kPlace));
    EXPECT_TRUE(windows.hide({400, 350, 200, 150}));
}

TEST_F(QtWindowsTest, any_of_several_windows_may_hide_it_but_not_two_together) {
    const auto left = makeWindow(true);
    const auto right = makeWindow(true);
    right->setFrame({300, 100, 200, 150}, true);
    left->orderFrontRegardless();
    right->orderFrontRegardless();
    EXPECT_TRUE(windows.hide(kPlace));
    EXPECT_TRUE(windows.hide({300, 350, 200, 150}));
    EXPECT_FALSE(windows.hide({250, 400, 100, 20}));
}

} // namespace
} // namespace quillon::test
