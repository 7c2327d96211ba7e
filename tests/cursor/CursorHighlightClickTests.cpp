#include "cursor/CursorHighlightManagerTest.h"

#include <utility>

namespace quillon::test {

TEST_F(CursorHighlightManagerTest,
       a_click_in_an_own_window_plays_at_the_pointer_for_half_a_second) {
    settings().haloColor = Color::pink;
    settings().clickAnimationType = ClickAnimationType::ripple;
    enable();
    press(NSEventType::leftMouseDown, kPlace);
    ASSERT_EQ(manager().activeClickAnimationCount(), 1);
    const auto& window = *manager().clickAnimationWindows().front();
    EXPECT_EQ(window.frame(), (CGRect{470, 270, 60, 60}));
    EXPECT_EQ(window.animationType(), ClickAnimationType::ripple);
    EXPECT_FALSE(window.isRightClick());
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(dynamic_cast<const ClickAnimationView&>(*window.contentView()->rootView).color(),
              Color::pink);
    host.mainQueue.advance(0.4999);
    EXPECT_EQ(manager().activeClickAnimationCount(), 1);
    host.mainQueue.advance(0.0002);
    EXPECT_EQ(manager().activeClickAnimationCount(), 0);
    EXPECT_EQ(count("orderOut"), 1);
}

TEST_F(CursorHighlightManagerTest, a_right_click_is_told_apart_and_a_middle_click_is_not_heard) {
    enable();
    press(NSEventType::rightMouseDown, kPlace);
    ASSERT_EQ(manager().activeClickAnimationCount(), 1);
    EXPECT_TRUE(manager().clickAnimationWindows().front()->isRightClick());
    press(NSEventType::otherMouseDown, kPlace);
    EXPECT_EQ(manager().activeClickAnimationCount(), 1);
}

TEST_F(CursorHighlightManagerTest, a_click_in_an_own_window_leaves_the_halo_where_it_is) {
    enable();
    movePointer({10, 10});
    press(NSEventType::leftMouseDown, kPlace);
    EXPECT_EQ(manager().haloWindow()->frame().center(), (CGPoint{10, 10}));
}

TEST_F(CursorHighlightManagerTest, the_local_monitor_passes_the_event_on_unchanged) {
    enable();
    const auto monitor = host.eventMonitors.localMonitors.begin()->second;
    EXPECT_EQ(monitor.handler({NSEventType::rightMouseDown}),
              (NSEvent{NSEventType::rightMouseDown}));
}

TEST_F(CursorHighlightManagerTest, quick_clicks_have_a_window_and_a_timer_each) {
    enable();
    for (int click = 0; click < 5; ++click) {
        press(NSEventType::leftMouseDown, kPlace);
        host.mainQueue.advance(0.1);
    }
    // The first one is half a second old.
    EXPECT_EQ(manager().activeClickAnimationCount(), 4);
    host.mainQueue.advance(0.2);
    EXPECT_EQ(manager().activeClickAnimationCount(), 2);
    host.mainQueue.advance(0.2);
    EXPECT_EQ(manager().activeClickAnimationCount(), 0);
}

TEST_F(CursorHighlightManagerTest, with_no_animation_chosen_no_window_is_made) {
    settings().clickAnimationType = ClickAnimationType::none;
    enable();
    press(NSEventType::leftMouseDown, kPlace);
    manager().handleClick(kPlace, false);
    EXPECT_EQ(manager().activeClickAnimationCount(), 0);
    EXPECT_EQ(host.application.windows().size(), 1U);
}

TEST_F(CursorHighlightManagerTest, a_click_handed_in_plays_only_while_enabled) {
    manager().handleClick(kPlace, true);
    EXPECT_EQ(manager().activeClickAnimationCount(), 0);
    enable();
    manager().handleClick(kPlace, true);
    ASSERT_EQ(manager().activeClickAnimationCount(), 1);
    EXPECT_TRUE(manager().clickAnimationWindows().front()->isRightClick());
}

TEST_F(CursorHighlightManagerTest,
       off_in_the_middle_hides_the_windows_and_leaves_them_to_their_timers) {
    enable();
    press(NSEventType::leftMouseDown, kPlace);
    const auto window = manager().clickAnimationWindows().front();
    disable();
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(manager().activeClickAnimationCount(), 1);
    host.mainQueue.advance(0.5);
    EXPECT_EQ(manager().activeClickAnimationCount(), 0);
}

TEST_F(CursorHighlightManagerTest, ten_thousand_clicks_leave_no_window_behind) {
    enable();
    for (int click = 0; click < 10000; ++click) {
        press(NSEventType::leftMouseDown, kPlace);
        host.mainQueue.advance(0.01);
    }
    EXPECT_LE(manager().activeClickAnimationCount(), 50);
    host.mainQueue.advance(0.5);
    EXPECT_EQ(host.application.windows().size(), 1U) << "the halo alone";
    EXPECT_TRUE(host.mainQueue.isIdle());
}

TEST_F(CursorHighlightManagerTest, an_end_in_the_middle_of_an_animation_is_quiet) {
    enable();
    press(NSEventType::leftMouseDown, kPlace);
    press(NSEventType::leftMouseDown, kPlace);
    EXPECT_FALSE(host.mainQueue.isIdle());
}

TEST(CursorHighlightTimers, a_timer_whose_window_has_gone_already_does_nothing) {
    /// Every piece of work comes round a second time.
    struct RepeatingQueue : HandTurnedQueue {
        void asyncAfter(double seconds, Work work) override {
            HandTurnedQueue::asyncAfter(seconds, work);
            HandTurnedQueue::asyncAfter(seconds, std::move(work));
        }
    } queue;
    FakePorts fakes;
    auto ports = fakes.ports();
    ports.mainQueue = queue;
    const Host host(ports);
    auto& manager = CursorHighlightManager::shared();
    manager.isEnabled = true;
    manager.handleClick(kPlace, false);
    queue.advance(0.1);
    manager.handleClick(kPlace, false);
    queue.advance(0.4);
    EXPECT_EQ(manager.activeClickAnimationCount(), 1) << "the younger one has time left";
    queue.advance(0.1);
    EXPECT_EQ(manager.activeClickAnimationCount(), 0);
}

} // namespace quillon::test
