#include "cursor/CursorHighlightManagerTest.h"
#include "support/HostAfterHost.h"

#include <string>

namespace quillon::test {

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

TEST(CursorHighlightAfterItsHost, a_place_that_waits_is_not_taken) {
    HostAfterHost hosts;
    CursorHighlightManager::shared().isEnabled = true;
    hosts.eventMonitors().sendToOthers(NSEventType::mouseMoved, kPlace);
    hosts.replaceHost();
    EXPECT_FALSE(hosts.queue().isIdle());
    hosts.queue().run();
    EXPECT_TRUE(hosts.windows().calls.empty());
}

TEST(CursorHighlightAfterItsHost, a_monitor_is_deaf_and_passes_every_event_on) {
    HostAfterHost hosts;
    CursorHighlightManager::shared().isEnabled = true;
    hosts.queue().run();
    hosts.replaceHost();
    hosts.eventMonitors().sendToOthers(NSEventType::mouseMoved, kPlace);
    EXPECT_TRUE(hosts.queue().isIdle());
    const auto monitor = hosts.eventMonitors().localMonitors.begin()->second;
    EXPECT_EQ(monitor.handler({NSEventType::leftMouseDown}), (NSEvent{NSEventType::leftMouseDown}));
    EXPECT_TRUE(hosts.queue().isIdle());
}

} // namespace quillon::test
