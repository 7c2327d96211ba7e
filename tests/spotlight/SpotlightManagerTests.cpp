#include "spotlight/SpotlightTest.h"
#include "support/HostAfterHost.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace quillon::test {
namespace {

using SpotlightManagerTest = SpotlightTest;

bool isMadeOfOnly(const std::vector<std::string>& calls, const std::vector<std::string>& allowed) {
    return std::ranges::all_of(
        calls, [&](const auto& call) { return std::ranges::find(allowed, call) != allowed.end(); });
}

TEST_F(SpotlightManagerTest, it_comes_up_switched_off_with_the_stored_looks) {
    settings().isSpotlightEnabled = true;
    settings().spotlightIntensity = 0.35;
    settings().spotlightRadius = 220;
    EXPECT_FALSE(manager().isSpotlightEnabled);
    EXPECT_EQ(manager().spotlightIntensity, 0.35);
    EXPECT_EQ(manager().spotlightRadius, 220);
    EXPECT_FALSE(manager().spotlightWindow());
    EXPECT_TRUE(host.eventMonitors.globalMonitors.empty());
}

TEST_F(SpotlightManagerTest,
       the_window_is_transparent_floating_everywhere_and_lets_clicks_through) {
    manager().isSpotlightEnabled = true;
    const auto* window = manager().spotlightWindow();
    ASSERT_TRUE(window);
    EXPECT_EQ(window->styleMask(), WindowStyleMask::borderless);
    EXPECT_EQ(window->backingType(), BackingStoreType::buffered);
    EXPECT_FALSE(window->defersCreation());
    EXPECT_FALSE(window->isOpaque());
    EXPECT_EQ(window->backgroundColor(), Color::clear);
    EXPECT_EQ(window->level(), 3);
    EXPECT_EQ(window->collectionBehavior(), NSWindowCollectionBehavior::canJoinAllSpaces |
                                                NSWindowCollectionBehavior::fullScreenAuxiliary |
                                                NSWindowCollectionBehavior::ignoresCycle);
    EXPECT_TRUE(window->ignoresMouseEvents());
    EXPECT_FALSE(window->hasShadow());
    EXPECT_TRUE(window->isVisible());
}

TEST_F(SpotlightManagerTest, it_never_asks_for_the_keyboard) {
    manager().toggleSpotlight();
    movePointer({10, 10});
    manager().toggleSpotlight();
    EXPECT_TRUE(isMadeOfOnly(host.windows.calls,
                             {"ignoresMouse", "contentView", "orderFront", "orderOut"}));
}

TEST_F(SpotlightManagerTest, the_window_is_made_with_a_circle_where_the_pointer_is) {
    host.screens.all = {{{0, 0, 800, 600}, {}, 1, "Screen"}};
    host.eventMonitors.location = {100, 50};
    const SpotlightWindow window({-200, 0, 1000, 600});
    const auto& view = dynamic_cast<SpotlightView&>(*window.contentView()->rootView);
    EXPECT_EQ(view.value(), (SpotlightView::Value{{300, 550}, 150, 0.7}));
}

TEST_F(SpotlightManagerTest, one_window_spans_all_screens_and_the_gaps_between_them) {
    host.screens.all = {{{0, 0, 1920, 1080}, {}, 1, "Primary"},
                        {{1920, -200, 1280, 1024}, {}, 1, "Right, lower"},
                        {{-800, 700, 800, 600}, {}, 2, "Left, higher"}};
    manager().isSpotlightEnabled = true;
    EXPECT_EQ(manager().spotlightWindow()->frame(), (CGRect{-800, -200, 4000, 1500}));
}

TEST_F(SpotlightManagerTest, the_window_holds_the_origin_whether_or_not_a_screen_lies_there) {
    host.screens.all = {{{500, 400, 800, 600}, {}, 1, "Far"}};
    manager().isSpotlightEnabled = true;
    EXPECT_EQ(manager().spotlightWindow()->frame(), (CGRect{0, 0, 1300, 1000}));
}

TEST_F(SpotlightManagerTest, without_any_screen_the_window_is_there_and_empty) {
    host.screens.all.clear();
    manager().isSpotlightEnabled = true;
    EXPECT_EQ(manager().spotlightWindow()->frame(), CGRect::zero);
}

TEST_F(SpotlightManagerTest, the_circle_follows_the_pointer_from_one_screen_to_another) {
    host.screens.all = {{{0, 0, 1000, 800}, {}, 1, "Primary"},
                        {{1000, 100, 1000, 900}, {}, 1, "Right, higher"}};
    manager().isSpotlightEnabled = true;
    movePointer({400, 300});
    // The top of the union lies at 1000.
    EXPECT_EQ(shown().cursorLocation, (CGPoint{400, 700}));
    movePointer({1500, 950});
    EXPECT_EQ(shown().cursorLocation, (CGPoint{1500, 50}));
}

TEST_F(SpotlightManagerTest, the_circle_is_right_where_the_union_begins_left_of_and_below_zero) {
    host.screens.all = {{{0, 0, 1000, 800}, {}, 1, "Primary"},
                        {{-600, -300, 600, 700}, {}, 1, "Left, lower"}};
    manager().isSpotlightEnabled = true;
    movePointer({-500, -200});
    EXPECT_EQ(shown().cursorLocation, (CGPoint{100, 1000}));
    movePointer({900, 700});
    EXPECT_EQ(shown().cursorLocation, (CGPoint{1500, 100}));
}

TEST_F(SpotlightManagerTest, the_circle_starts_where_the_pointer_is) {
    host.eventMonitors.location = {300, 1000};
    manager().isSpotlightEnabled = true;
    EXPECT_EQ(manager().currentCursorLocation(), (CGPoint{300, 1000}));
    host.mainQueue.run();
    EXPECT_EQ(shown().cursorLocation, (CGPoint{300, 80}));
}

TEST_F(SpotlightManagerTest, a_move_is_known_at_once_and_shown_one_turn_later) {
    manager().isSpotlightEnabled = true;
    movePointer({10, 1070});
    host.eventMonitors.sendToOthers(NSEventType::mouseMoved, {200, 980});
    EXPECT_EQ(manager().currentCursorLocation(), (CGPoint{200, 980}));
    EXPECT_EQ(shown().cursorLocation, (CGPoint{10, 10}));
    host.mainQueue.turn();
    EXPECT_EQ(shown().cursorLocation, (CGPoint{200, 100}));
}

TEST_F(SpotlightManagerTest, plain_moves_alone_are_watched_and_only_over_other_programs) {
    manager().isSpotlightEnabled = true;
    ASSERT_EQ(host.eventMonitors.globalMonitors.size(), 1U);
    EXPECT_EQ(host.eventMonitors.globalMonitors.begin()->second.mask, 32U);
    EXPECT_TRUE(host.eventMonitors.localMonitors.empty());

    movePointer({50, 50});
    host.eventMonitors.sendToOwnWindow(NSEventType::mouseMoved, {70, 70});
    host.mainQueue.run();
    EXPECT_EQ(manager().currentCursorLocation(), (CGPoint{50, 50}));
}

TEST_F(SpotlightManagerTest, while_the_pointer_drags_the_circle_stays_until_the_next_plain_move) {
    manager().isSpotlightEnabled = true;
    movePointer({50, 1030});
    host.eventMonitors.sendToOthers(NSEventType::leftMouseDown, {50, 1030});
    // A motion with the button held is reported by nobody.
    host.eventMonitors.location = {400, 400};
    host.mainQueue.run();
    EXPECT_EQ(shown().cursorLocation, (CGPoint{50, 50}));
    movePointer({401, 400});
    EXPECT_EQ(shown().cursorLocation, (CGPoint{401, 680}));
}

TEST_F(SpotlightManagerTest, switched_off_the_window_is_hidden_and_nothing_is_watched) {
    manager().toggleSpotlight();
    host.mainQueue.run();
    manager().toggleSpotlight();
    EXPECT_FALSE(manager().isSpotlightEnabled);
    EXPECT_FALSE(manager().spotlightWindow()->isVisible());
    EXPECT_TRUE(host.eventMonitors.globalMonitors.empty());
    EXPECT_EQ(host.eventMonitors.removals, 1);
}

TEST_F(SpotlightManagerTest, a_move_that_was_under_way_when_it_went_off_shows_nothing_new) {
    manager().isSpotlightEnabled = true;
    movePointer({10, 1070});
    host.eventMonitors.sendToOthers(NSEventType::mouseMoved, {200, 980});
    manager().isSpotlightEnabled = false;
    host.mainQueue.run();
    EXPECT_EQ(shown().cursorLocation, (CGPoint{10, 10}));
}

TEST_F(SpotlightManagerTest, switched_on_again_it_is_the_same_window_with_its_old_extent) {
    manager().isSpotlightEnabled = true;
    const auto* window = manager().spotlightWindow();
    manager().isSpotlightEnabled = false;
    host.screens.all.push_back({{1920, 0, 1280, 1024}, {}, 1, "Plugged in later"});
    manager().isSpotlightEnabled = true;
    EXPECT_EQ(manager().spotlightWindow(), window);
    EXPECT_EQ(window->frame(), (CGRect{0, 0, 1920, 1080}));
    EXPECT_TRUE(window->isVisible());
}

TEST_F(SpotlightManagerTest, switched_on_again_it_stands_at_the_pointer_and_follows_it_anew) {
    manager().isSpotlightEnabled = true;
    manager().isSpotlightEnabled = false;
    host.eventMonitors.location = {70, 1000};
    manager().isSpotlightEnabled = true;
    host.mainQueue.run();
    EXPECT_EQ(shown().cursorLocation, (CGPoint{70, 80}));
    movePointer({200, 980});
    EXPECT_EQ(shown().cursorLocation, (CGPoint{200, 100}));
}

TEST_F(SpotlightManagerTest, switching_on_what_is_on_brings_the_window_to_the_front_once_more) {
    manager().isSpotlightEnabled = true;
    host.windows.calls.clear();
    manager().isSpotlightEnabled = true;
    EXPECT_EQ(host.windows.calls, std::vector<std::string>{"orderFront"});
    EXPECT_EQ(host.eventMonitors.globalMonitors.size(), 1U);
    EXPECT_EQ(host.eventMonitors.removals, 0);
}

TEST_F(SpotlightManagerTest, a_changed_setting_shows_at_once) {
    manager().isSpotlightEnabled = true;
    settings().spotlightIntensity = 1;
    EXPECT_EQ(shown().intensity, 1);
    settings().spotlightRadius = 90;
    EXPECT_EQ(shown().radius, 90);
}

TEST_F(SpotlightManagerTest, an_intensity_of_zero_leaves_the_window_there) {
    settings().spotlightIntensity = 0;
    manager().isSpotlightEnabled = true;
    EXPECT_EQ(shown().intensity, 0);
    EXPECT_TRUE(manager().spotlightWindow()->isVisible());
}

TEST_F(SpotlightManagerTest, settings_changed_while_it_is_off_are_seen_when_it_comes_on) {
    settings().spotlightRadius = 80;
    manager().isSpotlightEnabled = true;
    manager().isSpotlightEnabled = false;
    settings().spotlightRadius = 60;
    manager().isSpotlightEnabled = true;
    EXPECT_EQ(shown().radius, 60);
}

TEST_F(SpotlightManagerTest, a_content_of_another_kind_is_left_alone) {
    struct PlainView : ContentView {
        void layout(CGSize, CGFloat) override {}
        Damage takeDamage() override { return {}; }
        void paint(GraphicsContext&, const CGRect&) override {}
    };
    manager().isSpotlightEnabled = true;
    const auto content = manager().spotlightWindow()->contentView();
    content->rootView = std::make_unique<PlainView>();
    settings().spotlightRadius = 60;
    movePointer({5, 5});
    EXPECT_EQ(manager().spotlightRadius, 60);
}

TEST_F(SpotlightManagerTest, where_nothing_can_be_watched_the_circle_stands_where_the_pointer_was) {
    host.eventMonitors.offersGlobalMonitors = false;
    host.eventMonitors.location = {300, 1000};
    manager().isSpotlightEnabled = true;
    host.mainQueue.run();
    EXPECT_EQ(shown().cursorLocation, (CGPoint{300, 80}));
    manager().isSpotlightEnabled = false;
    EXPECT_FALSE(manager().spotlightWindow()->isVisible());
}

TEST_F(SpotlightManagerTest, a_change_of_a_published_property_is_announced) {
    int announcements = 0;
    const auto observer = manager().objectWillChange.sink([&] { ++announcements; });
    manager().isSpotlightEnabled = true;
    settings().spotlightIntensity = 0.5;
    EXPECT_EQ(announcements, 2);
}

TEST(SpotlightAfterItsHost, a_place_that_waits_is_not_taken) {
    HostAfterHost hosts;
    SpotlightManager::shared().isSpotlightEnabled = true;
    hosts.replaceHost();
    EXPECT_FALSE(hosts.queue().isIdle());
    hosts.queue().run();
    EXPECT_TRUE(hosts.windows().calls.empty());
}

TEST(SpotlightAfterItsHost, a_monitor_is_deaf) {
    HostAfterHost hosts;
    SpotlightManager::shared().isSpotlightEnabled = true;
    hosts.queue().run();
    hosts.replaceHost();
    hosts.eventMonitors().sendToOthers(NSEventType::mouseMoved, {10, 10});
    EXPECT_TRUE(hosts.queue().isIdle());
}

} // namespace
} // namespace quillon::test
