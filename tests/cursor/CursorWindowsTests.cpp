#include "cursor/ClickAnimationWindow.h"
#include "cursor/HaloWindow.h"

#include "cursor/CursorTest.h"
#include "support/WindowExpectations.h"

#include <algorithm>

namespace quillon::test {

namespace {

using CursorWindowsTest = CursorTest;

void expectToBeInNobodysWay(const Window& window) {
    expectToFloatTransparently(window);
    EXPECT_TRUE(window.ignoresMouseEvents());
    EXPECT_FALSE(window.canBecomeKeyWindow());
    EXPECT_FALSE(window.isVisible());
}

} // namespace

TEST_F(CursorWindowsTest, the_halo_window_is_made_with_the_built_in_look) {
    const HaloWindow window;
    expectToBeInNobodysWay(window);
    EXPECT_EQ(window.frame(), (CGRect{0, 0, 40, 40}));
    const auto& view = dynamic_cast<const HaloView&>(*window.contentView()->rootView);
    EXPECT_EQ(view.shape(), HaloShape::ring);
    EXPECT_EQ(view.color(), Color::cyan);
    EXPECT_EQ(view.size(), 40);
}

TEST_F(CursorWindowsTest, a_click_window_is_centred_on_the_click_and_hands_on_what_it_got) {
    const ClickAnimationWindow window({200, 100}, Color::pink, 60, ClickAnimationType::ripple,
                                      true);
    expectToBeInNobodysWay(window);
    EXPECT_EQ(window.frame(), (CGRect{170, 70, 60, 60}));
    EXPECT_EQ(window.animationType(), ClickAnimationType::ripple);
    EXPECT_TRUE(window.isRightClick());
    const auto& view = dynamic_cast<const ClickAnimationView&>(*window.contentView()->rootView);
    EXPECT_EQ(view.color(), Color::pink);
    EXPECT_EQ(view.size(), 60);
    EXPECT_EQ(view.type(), ClickAnimationType::ripple);
    EXPECT_TRUE(view.isRightClick());
}

TEST_F(CursorWindowsTest, shown_a_click_window_comes_to_the_front_and_plays) {
    ClickAnimationWindow window({200, 100}, Color::pink, 60, ClickAnimationType::pulse, false);
    host.windows.calls.clear();
    window.show();
    EXPECT_EQ(host.windows.calls, std::vector<std::string>{"orderFront"});
    host.mainQueue.advance(0.2);
    const auto& view = dynamic_cast<const ClickAnimationView&>(*window.contentView()->rootView);
    EXPECT_LT(view.opacity(), 1);
    EXPECT_GT(view.opacity(), 0);
}

TEST_F(CursorWindowsTest, the_pointer_falls_through_before_a_window_is_first_shown) {
    ClickAnimationWindow window({200, 100}, Color::pink, 60, ClickAnimationType::pulse, false);
    window.show();
    const auto& calls = host.windows.calls;
    const auto ignores = std::ranges::find(calls, "ignoresMouse");
    ASSERT_NE(ignores, calls.end());
    EXPECT_LT(ignores, std::ranges::find(calls, "orderFront"));
}

} // namespace quillon::test
