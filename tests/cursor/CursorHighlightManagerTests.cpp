#include "cursor/CursorTest.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quillon::test {

namespace {

struct CursorHighlightManagerTest : CursorTest {
    void enable() {
        manager().isEnabled = true;
        host.mainQueue.run();
    }
    void disable() {
        manager().isEnabled = false;
        host.mainQueue.run();
    }
    std::uint64_t globalMask() { return host.eventMonitors.globalMonitors.begin()->second.mask; }
    std::uint64_t localMask() { return host.eventMonitors.localMonitors.begin()->second.mask; }
    int count(const char* call) {
        return static_cast<int>(std::ranges::count(host.windows.calls, call));
    }
};

constexpr CGPoint kPlace{500, 300};

} // namespace

// Coming into being.

TEST_F(CursorHighlightManagerTest, it_starts_off_whatever_the_store_holds) {
    settings().isCursorHaloEnabled = true;
    EXPECT_FALSE(manager().isEnabled);
    EXPECT_FALSE(manager().eventMonitor());
    EXPECT_FALSE(manager().localEventMonitor());
    EXPECT_FALSE(manager().haloWindow());
    EXPECT_EQ(manager().activeClickAnimationCount(), 0);
    EXPECT_EQ(manager().currentCursorLocation(), (CGPoint{0, 0}));
}

TEST_F(CursorHighlightManagerTest, it_takes_the_stored_looks_at_once_and_follows_them) {
    settings().haloShape = HaloShape::squircle;
    settings().haloColor = Color::red;
    settings().haloSize = 77;
    settings().clickAnimationType = ClickAnimationType::ripple;
    EXPECT_EQ(manager().haloShape, HaloShape::squircle);
    EXPECT_EQ(manager().haloColor.get(), Color::red);
    EXPECT_EQ(manager().haloSize, 77);
    EXPECT_EQ(manager().clickAnimationType, ClickAnimationType::ripple);
    settings().haloShape = HaloShape::rhombus;
    settings().haloColor = Color::mint;
    settings().haloSize = 30;
    settings().clickAnimationType = ClickAnimationType::none;
    EXPECT_EQ(manager().haloShape, HaloShape::rhombus);
    EXPECT_EQ(manager().haloColor.get(), Color::mint);
    EXPECT_EQ(manager().haloSize, 30);
    EXPECT_EQ(manager().clickAnimationType, ClickAnimationType::none);
}

TEST_F(CursorHighlightManagerTest, a_stored_switch_that_changes_does_not_switch_it) {
    manager();
    settings().isCursorHaloEnabled = true;
    EXPECT_FALSE(manager().isEnabled);
}

TEST_F(CursorHighlightManagerTest, update_settings_assigns_what_is_given_and_leaves_the_rest) {
    manager().updateSettings(HaloShape::rhombus, std::nullopt, 55.0);
    EXPECT_EQ(manager().haloShape, HaloShape::rhombus);
    EXPECT_EQ(manager().haloColor.get(), Color::cyan);
    EXPECT_EQ(manager().haloSize, 55);
    EXPECT_EQ(manager().clickAnimationType, ClickAnimationType::pulse);
    manager().updateSettings(std::nullopt, Color::red, std::nullopt, ClickAnimationType::none);
    EXPECT_EQ(manager().haloShape, HaloShape::rhombus);
    EXPECT_EQ(manager().haloColor.get(), Color::red);
    EXPECT_EQ(manager().clickAnimationType, ClickAnimationType::none);
}

TEST_F(CursorHighlightManagerTest, update_settings_goes_in_the_order_of_its_parameters) {
    std::string order;
    const auto shape = manager().haloShape.sinkDroppingFirst([&](HaloShape) { order += 's'; });
    const auto color = manager().haloColor.sinkDroppingFirst([&](const Color&) { order += 'c'; });
    const auto size = manager().haloSize.sinkDroppingFirst([&](CGFloat) { order += 'z'; });
    const auto type =
        manager().clickAnimationType.sinkDroppingFirst([&](ClickAnimationType) { order += 'a'; });
    manager().updateSettings(HaloShape::ring, Color::red, 50, ClickAnimationType::none);
    EXPECT_EQ(order, "scza");
}

// Tracking.

TEST_F(CursorHighlightManagerTest, enabled_it_watches_with_exactly_these_masks) {
    enable();
    EXPECT_EQ(globalMask(), 32U | 2U | 8U | 33554432U);
    EXPECT_EQ(localMask(), 2U | 8U);
}

TEST_F(CursorHighlightManagerTest, enabled_twice_it_watches_once) {
    enable();
    const auto token = manager().eventMonitor();
    const HaloWindow* window = manager().haloWindow();
    manager().isEnabled = true;
    manager().startTracking();
    EXPECT_EQ(host.eventMonitors.globalMonitors.size(), 1U);
    EXPECT_EQ(host.eventMonitors.localMonitors.size(), 1U);
    EXPECT_EQ(manager().eventMonitor(), token);
    EXPECT_EQ(manager().haloWindow(), window);
}

TEST_F(CursorHighlightManagerTest, a_global_monitor_alone_keeps_tracking_from_starting_again) {
    host.eventMonitors.offersLocalMonitors = false;
    enable();
    host.eventMonitors.offersLocalMonitors = true;
    manager().startTracking();
    EXPECT_TRUE(manager().eventMonitor());
    EXPECT_FALSE(manager().localEventMonitor());
    EXPECT_EQ(host.eventMonitors.globalMonitors.size(), 1U);
}

TEST_F(CursorHighlightManagerTest, a_local_monitor_alone_keeps_tracking_from_starting_again) {
    host.eventMonitors.offersGlobalMonitors = false;
    enable();
    host.eventMonitors.offersGlobalMonitors = true;
    manager().startTracking();
    EXPECT_FALSE(manager().eventMonitor());
    EXPECT_TRUE(manager().localEventMonitor());
    EXPECT_EQ(host.eventMonitors.localMonitors.size(), 1U);
}

TEST_F(CursorHighlightManagerTest, with_no_monitor_offered_the_next_enabling_asks_again) {
    host.eventMonitors.offersGlobalMonitors = false;
    host.eventMonitors.offersLocalMonitors = false;
    enable();
    host.eventMonitors.offersGlobalMonitors = true;
    host.eventMonitors.offersLocalMonitors = true;
    enable();
    EXPECT_TRUE(manager().eventMonitor());
    EXPECT_TRUE(manager().localEventMonitor());
}

TEST_F(CursorHighlightManagerTest, tracking_that_is_started_while_off_shows_and_plays_nothing) {
    manager().startTracking();
    movePointer(kPlace);
    press(NSEventType::leftMouseDown, kPlace);
    EXPECT_EQ(manager().currentCursorLocation(), kPlace);
    EXPECT_FALSE(manager().haloWindow()->isVisible());
    EXPECT_EQ(manager().activeClickAnimationCount(), 0);
}

TEST_F(CursorHighlightManagerTest, stopped_it_watches_nothing) {
    enable();
    manager().stopTracking();
    EXPECT_TRUE(host.eventMonitors.globalMonitors.empty());
    EXPECT_TRUE(host.eventMonitors.localMonitors.empty());
    EXPECT_FALSE(manager().eventMonitor());
    EXPECT_FALSE(manager().localEventMonitor());
    EXPECT_TRUE(manager().isEnabled);
    manager().stopTracking();
    EXPECT_EQ(host.eventMonitors.removals, 2);
}

// The halo's place.

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

// The halo's look.

TEST_F(CursorHighlightManagerTest,
       first_enabled_it_shows_the_built_in_look_in_a_window_of_the_chosen_size) {
    settings().haloShape = HaloShape::rhombus;
    settings().haloColor = Color::red;
    settings().haloSize = 80;
    enable();
    movePointer(kPlace);
    EXPECT_EQ(halo().shape(), HaloShape::ring);
    EXPECT_EQ(halo().color(), Color::cyan);
    EXPECT_EQ(halo().size(), 40);
    EXPECT_EQ(manager().haloWindow()->frame().width, 80);
}

TEST_F(CursorHighlightManagerTest, any_look_that_changes_while_enabled_brings_all_of_them) {
    settings().haloColor = Color::red;
    settings().haloSize = 80;
    enable();
    settings().haloShape = HaloShape::squircle;
    EXPECT_EQ(halo().shape(), HaloShape::ring) << "the look follows in a later turn";
    host.mainQueue.run();
    EXPECT_EQ(halo().shape(), HaloShape::squircle);
    EXPECT_EQ(halo().color(), Color::red);
    EXPECT_EQ(halo().size(), 80);
}

TEST_F(CursorHighlightManagerTest,
       a_new_size_reaches_the_view_at_once_and_the_window_with_the_next_event) {
    enable();
    movePointer(kPlace);
    settings().haloSize = 100;
    host.mainQueue.run();
    EXPECT_EQ(halo().size(), 100);
    EXPECT_EQ(manager().haloWindow()->frame(), (CGRect{480, 280, 40, 40}));
    movePointer(kPlace);
    EXPECT_EQ(manager().haloWindow()->frame(), (CGRect{450, 250, 100, 100}));
}

TEST_F(CursorHighlightManagerTest,
       a_look_that_changed_while_off_waits_for_the_next_change_while_on) {
    enable();
    disable();
    settings().haloColor = Color::red;
    host.mainQueue.run();
    enable();
    movePointer(kPlace);
    EXPECT_EQ(halo().color(), Color::cyan);
    settings().haloShape = HaloShape::ring;
    host.mainQueue.run();
    EXPECT_EQ(halo().color(), Color::red);
}

TEST_F(CursorHighlightManagerTest, a_change_that_is_overtaken_by_the_switch_off_is_not_applied) {
    enable();
    settings().haloColor = Color::red;
    disable();
    EXPECT_EQ(halo().color(), Color::cyan);
}

TEST_F(CursorHighlightManagerTest, a_content_of_another_kind_is_left_alone) {
    struct PlainView : ContentView {
        void layout(CGSize, CGFloat) override {}
        Damage takeDamage() override { return {}; }
        void paint(GraphicsContext&, const CGRect&) override {}
    };
    enable();
    auto& content = *manager().haloWindow()->contentView();
    content.setRootView(std::make_unique<PlainView>());
    const ContentView* plain = content.rootView.get();
    settings().haloColor = Color::red;
    host.mainQueue.run();
    EXPECT_EQ(content.rootView.get(), plain);
}

TEST_F(CursorHighlightManagerTest, another_click_animation_leaves_the_halo_as_it_is) {
    enable();
    const HaloView* before = &halo();
    settings().clickAnimationType = ClickAnimationType::ripple;
    host.mainQueue.run();
    EXPECT_EQ(&halo(), before);
}

TEST_F(CursorHighlightManagerTest, movement_leaves_the_view_as_it_is) {
    enable();
    const HaloView* before = &halo();
    movePointer({1, 1});
    movePointer({2, 2});
    EXPECT_EQ(&halo(), before);
}

// Clicks.

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

TEST(CursorHighlightTimers, a_place_that_waits_is_not_taken_after_the_manager_has_gone) {
    /// Keeps what waits, also beyond the end of a host.
    struct KeepingQueue : HandTurnedQueue {
        void clear() override {}
    } queue;
    FakePorts fakes;
    auto ports = fakes.ports();
    ports.mainQueue = queue;
    auto host = std::make_optional<Host>(ports);
    CursorHighlightManager::shared().isEnabled = true;
    fakes.eventMonitors.sendToOthers(NSEventType::mouseMoved, kPlace);
    host.reset();
    host.emplace(ports);
    fakes.windows.calls.clear();
    queue.run();
    EXPECT_TRUE(fakes.windows.calls.empty());
}

TEST(CursorHighlightMonitors, after_the_manager_a_monitor_is_deaf_and_passes_every_event_on) {
    FakePorts fakes;
    auto host = std::make_optional<Host>(fakes.ports());
    CursorHighlightManager::shared().isEnabled = true;
    host.reset();
    host.emplace(fakes.ports());
    fakes.eventMonitors.sendToOthers(NSEventType::mouseMoved, kPlace);
    EXPECT_TRUE(fakes.mainQueue.isIdle());
    const auto monitor = fakes.eventMonitors.localMonitors.begin()->second;
    EXPECT_EQ(monitor.handler({NSEventType::leftMouseDown}), (NSEvent{NSEventType::leftMouseDown}));
    EXPECT_TRUE(fakes.mainQueue.isIdle());
}

} // namespace quillon::test
