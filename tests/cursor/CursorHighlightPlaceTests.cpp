#include "cursor/CursorHighlightManagerTest.h"

#include <string>
#include <vector>

namespace quillon::test {

TEST_F(CursorHighlightManagerTest, armed_it_has_a_window_that_is_not_shown_before_the_first_event) {
    enable();
    ASSERT_TRUE(manager().haloWindow());
    EXPECT_FALSE(manager().haloWindow()->isVisible());
    movePointer(kPlace);
    EXPECT_TRUE(manager().haloWindow()->isVisible());
}

TEST_F(CursorHighlightManagerTest, the_pointer_stands_in_the_middle_of_the_window) {
    settings().haloSize = 50;
    enable();
    movePointer({500.5, 300});
    EXPECT_EQ(manager().haloWindow()->frame(), (CGRect{475.5, 275, 50, 50}));
    EXPECT_EQ(manager().currentCursorLocation(), (CGPoint{500.5, 300}));
}

TEST_F(CursorHighlightManagerTest, the_halo_moves_in_a_later_turn_than_the_event) {
    enable();
    host.eventMonitors.sendToOthers(NSEventType::mouseMoved, kPlace);
    EXPECT_EQ(manager().currentCursorLocation(), kPlace);
    EXPECT_FALSE(manager().haloWindow()->isVisible());
    host.mainQueue.turn();
    EXPECT_TRUE(manager().haloWindow()->isVisible());
}

TEST_F(CursorHighlightManagerTest, every_event_moves_it_and_brings_it_to_the_front) {
    enable();
    host.windows.calls.clear();
    movePointer({1, 1});
    movePointer({2, 2});
    EXPECT_EQ(host.windows.calls,
              (std::vector<std::string>{"frame", "orderFront", "frame", "orderFront"}));
}

TEST_F(CursorHighlightManagerTest, places_are_taken_in_the_order_of_the_events) {
    enable();
    host.eventMonitors.sendToOthers(NSEventType::mouseMoved, {100, 100});
    host.eventMonitors.sendToOthers(NSEventType::mouseMoved, {200, 200});
    host.mainQueue.run();
    EXPECT_EQ(manager().haloWindow()->frame(), (CGRect{180, 180, 40, 40}));
}

TEST_F(CursorHighlightManagerTest, a_click_in_another_program_moves_the_halo_and_plays_nothing) {
    enable();
    for (const NSEventType type :
         {NSEventType::leftMouseDown, NSEventType::rightMouseDown, NSEventType::otherMouseDown}) {
        movePointer({0, 0});
        sendToOthers(type, kPlace);
        EXPECT_EQ(manager().haloWindow()->frame().center(), kPlace);
    }
    EXPECT_EQ(manager().activeClickAnimationCount(), 0);
}

TEST_F(CursorHighlightManagerTest, an_event_before_the_switch_off_does_not_bring_the_halo_back) {
    enable();
    host.eventMonitors.sendToOthers(NSEventType::mouseMoved, kPlace);
    disable();
    EXPECT_FALSE(manager().haloWindow()->isVisible());
}

TEST_F(CursorHighlightManagerTest, off_it_hides_the_halo_and_keeps_the_window_for_the_next_time) {
    enable();
    movePointer(kPlace);
    const HaloWindow* window = manager().haloWindow();
    disable();
    EXPECT_FALSE(window->isVisible());
    movePointer({1, 1});
    EXPECT_FALSE(window->isVisible());
    enable();
    EXPECT_EQ(manager().haloWindow(), window);
    EXPECT_FALSE(window->isVisible());
    movePointer({2, 2});
    EXPECT_TRUE(window->isVisible());
}

TEST_F(CursorHighlightManagerTest, off_before_it_was_ever_on_has_no_effect) {
    disable();
    EXPECT_FALSE(manager().haloWindow());
    EXPECT_TRUE(host.windows.calls.empty());
}

} // namespace quillon::test
