#include "spotlight/ZoomTest.h"

#include <string>

#include <algorithm>

namespace quillon::test {
namespace {

using ZoomLensTest = ZoomTest;

TEST_F(ZoomLensTest, the_window_is_black_floating_everywhere_and_lets_clicks_through) {
    manager().isZoomEnabled = true;
    const auto* window = manager().zoomWindow();
    ASSERT_TRUE(window);
    EXPECT_EQ(window->styleMask(), WindowStyleMask::borderless);
    EXPECT_EQ(window->backingType(), BackingStoreType::buffered);
    EXPECT_FALSE(window->defersCreation());
    EXPECT_TRUE(window->isOpaque());
    EXPECT_EQ(window->backgroundColor(), Color::black);
    EXPECT_EQ(window->level(), 3);
    EXPECT_EQ(window->collectionBehavior(), NSWindowCollectionBehavior::canJoinAllSpaces |
                                                NSWindowCollectionBehavior::fullScreenAuxiliary |
                                                NSWindowCollectionBehavior::ignoresCycle);
    EXPECT_TRUE(window->ignoresMouseEvents());
    EXPECT_TRUE(window->hasShadow());
    EXPECT_TRUE(window->isVisible());
}

TEST_F(ZoomLensTest, it_is_made_with_the_stored_size_factor_and_crosshair) {
    settings().zoomWindowSize = 320;
    settings().magnificationFactor = MagnificationFactor::x4;
    settings().showZoomCrosshair = false;
    manager().isZoomEnabled = true;
    EXPECT_EQ(manager().zoomWindow()->frame(), (CGRect{0, 0, 320, 320}));
    EXPECT_EQ(manager().zoomWindow()->magnification(), 4);
    EXPECT_EQ(lens(), (ZoomView::Value{4, std::nullopt, false}));
    EXPECT_EQ(manager().zoomWindowRef(), manager().zoomWindow());
}

TEST_F(ZoomLensTest, it_never_asks_for_the_keyboard) {
    run();
    movePointer({10, 10});
    setEnabled(false);
    for (const char* call : {"makeKeyAndOrderFront", "takesMouse"}) {
        EXPECT_EQ(std::ranges::count(host.windows.calls, call), 0);
    }
}

TEST_F(ZoomLensTest, it_starts_beside_the_pointer_and_follows_it) {
    host.eventMonitors.location = {500, 600};
    manager().isZoomEnabled = true;
    EXPECT_EQ(manager().zoomWindow()->frame(), (CGRect{0, 0, 200, 200})) << "one turn later";
    host.mainQueue.run();
    EXPECT_EQ(manager().zoomWindow()->frame(), (CGRect{530, 370, 200, 200}));
    movePointer({501, 650});
    EXPECT_EQ(manager().zoomWindow()->frame(), (CGRect{531, 420, 200, 200}));
}

TEST_F(ZoomLensTest, the_offsets_of_the_moment_count) {
    run();
    settings().zoomWindowOffsetX = -100;
    settings().zoomWindowOffsetY = 55;
    movePointer({500, 600});
    EXPECT_EQ(manager().zoomWindow()->frame(), (CGRect{400, 345, 200, 200}));
}

TEST_F(ZoomLensTest, the_visible_frame_of_its_screen_holds_it) {
    host.screens.all.front().visibleFrame = {0, 40, 1920, 1010};
    run();
    movePointer({1900, 20});
    EXPECT_EQ(manager().zoomWindow()->frame(), (CGRect{1720, 40, 200, 200}));
}

TEST_F(ZoomLensTest, pinned_where_it_stands_it_is_displayed_anew_so_that_a_frame_comes) {
    run();
    movePointer({1900, 20});
    host.windows.calls.clear();
    movePointer({1905, 15});
    EXPECT_EQ(host.windows.calls, (std::vector<std::string>{"frame", "display"}));
}

TEST_F(ZoomLensTest, with_the_pointer_on_another_screen_it_stays_pinned_to_its_own) {
    host.screens.all.push_back({{1920, 0, 1280, 1024}, {1920, 0, 1280, 1024}, 1, "Right"});
    run();
    movePointer({2500, 500});
    EXPECT_EQ(manager().zoomWindow()->frame(), (CGRect{1720, 270, 200, 200}));
}

TEST_F(ZoomLensTest, it_changes_to_the_main_screen_when_it_is_next_switched_on) {
    run();
    ASSERT_EQ(manager().currentScreen()->localizedName, "Screen");
    host.screens.all.insert(host.screens.all.begin(),
                            {{1920, 0, 1280, 1024}, {1920, 0, 1280, 1024}, 1, "Right"});
    movePointer({2500, 500});
    EXPECT_EQ(manager().currentScreen()->localizedName, "Screen");
    setEnabled(false);
    setEnabled(true);
    EXPECT_EQ(manager().currentScreen()->localizedName, "Right");
}

TEST_F(ZoomLensTest, a_size_changed_while_there_is_a_lens_does_not_change_it) {
    run();
    settings().zoomWindowSize = 400;
    setEnabled(false);
    run();
    movePointer({500, 600});
    EXPECT_EQ(manager().zoomWindow()->frame().width, 200);
}

TEST_F(ZoomLensTest, switched_on_again_it_shows_its_last_picture_until_a_frame_comes) {
    run();
    capture().stream(0)->deliver({frame});
    const auto last = lens();
    ASSERT_TRUE(last.image);
    const auto* window = manager().zoomWindow();
    setEnabled(false);
    EXPECT_FALSE(window->isVisible());
    setEnabled(true);
    EXPECT_EQ(manager().zoomWindow(), window);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(lens(), last);
}

TEST_F(ZoomLensTest, another_factor_waits_for_the_next_frame) {
    run();
    movePointer({960, 540});
    capture().stream(0)->deliver({frame});
    const auto before = lens();
    settings().magnificationFactor = MagnificationFactor::x4;
    EXPECT_EQ(lens(), before);
    capture().stream(0)->deliver({frame});
    EXPECT_EQ(lens().magnification, 4);
    EXPECT_EQ(lens().image->image.part.width, 50);
}

// Tracking, shared with the spotlight.

TEST_F(ZoomLensTest, spotlight_and_lens_share_one_monitor) {
    run();
    manager().isSpotlightEnabled = true;
    EXPECT_EQ(host.eventMonitors.globalMonitors.size(), 1U);
    movePointer({500, 600});
    EXPECT_EQ(manager().zoomWindow()->frame(), (CGRect{530, 370, 200, 200}));
    EXPECT_EQ(shown().cursorLocation, (CGPoint{500, 480}));
}

TEST_F(ZoomLensTest, with_one_of_the_two_off_the_other_keeps_following) {
    run();
    manager().isSpotlightEnabled = true;
    manager().isSpotlightEnabled = false;
    movePointer({500, 600});
    EXPECT_EQ(manager().zoomWindow()->frame(), (CGRect{530, 370, 200, 200}));

    manager().isSpotlightEnabled = true;
    setEnabled(false);
    movePointer({100, 200});
    EXPECT_EQ(shown().cursorLocation, (CGPoint{100, 880}));
    EXPECT_EQ(manager().zoomWindow()->frame(), (CGRect{530, 370, 200, 200}));
}

TEST_F(ZoomLensTest, with_both_off_the_monitor_is_gone) {
    run();
    manager().isSpotlightEnabled = true;
    setEnabled(false);
    EXPECT_EQ(host.eventMonitors.globalMonitors.size(), 1U);
    manager().isSpotlightEnabled = false;
    EXPECT_TRUE(host.eventMonitors.globalMonitors.empty());
    EXPECT_EQ(host.eventMonitors.removals, 1);
}

TEST_F(ZoomLensTest, switched_off_with_no_spotlight_the_lens_takes_the_monitor_along) {
    run();
    EXPECT_EQ(host.eventMonitors.globalMonitors.size(), 1U);
    setEnabled(false);
    EXPECT_TRUE(host.eventMonitors.globalMonitors.empty());
    EXPECT_EQ(host.eventMonitors.removals, 1);
}

TEST_F(ZoomLensTest, a_spotlight_switched_on_beside_the_lens_is_right_at_once) {
    run();
    movePointer({500, 600});
    // The pointer has gone on where nobody reports it, such as over the program's own windows.
    host.eventMonitors.location = {5, 5};
    manager().isSpotlightEnabled = true;
    EXPECT_EQ(shown().cursorLocation, (CGPoint{500, 480}));
    host.mainQueue.run();
    EXPECT_EQ(shown().cursorLocation, (CGPoint{500, 480}));
}

TEST_F(ZoomLensTest, a_lens_switched_on_beside_the_spotlight_sits_still_until_the_pointer_moves) {
    manager().isSpotlightEnabled = true;
    movePointer({500, 600});
    setEnabled(true);
    EXPECT_EQ(manager().zoomWindow()->frame(), (CGRect{0, 0, 200, 200}));
    movePointer({500, 601});
    EXPECT_EQ(manager().zoomWindow()->frame(), (CGRect{530, 371, 200, 200}));
}

TEST_F(ZoomLensTest, the_spotlight_never_touches_the_stream) {
    run();
    const auto stream = manager().screenCaptureStream();
    manager().toggleSpotlight();
    manager().toggleSpotlight();
    host.mainQueue.run();
    EXPECT_EQ(manager().screenCaptureStream(), stream);
    EXPECT_EQ(manager().zoomGeneration(), 1);
    EXPECT_EQ(capture().runningStreams(), 1);
}

TEST_F(ZoomLensTest, a_lens_that_is_refused_still_follows_the_pointer) {
    setEnabled(true);
    answerProbe(kRefusal);
    movePointer({500, 600});
    EXPECT_EQ(manager().zoomWindow()->frame(), (CGRect{530, 370, 200, 200}));
}

// One call for several settings.

TEST_F(ZoomLensTest, an_update_of_the_settings_writes_what_it_is_given_and_leaves_the_rest) {
    manager().updateSettings({.radius = 75, .zoomWindowOffsetY = -4, .showZoomCrosshair = false});
    EXPECT_EQ(manager().spotlightRadius, 75);
    EXPECT_EQ(settings().spotlightRadius, 150) << "the manager's own, not the stored one";
    EXPECT_EQ(settings().zoomWindowOffsetY, -4);
    EXPECT_FALSE(settings().showZoomCrosshair);
    EXPECT_EQ(manager().spotlightIntensity, 0.7);
    EXPECT_EQ(settings().zoomWindowOffsetX, 30);

    manager().updateSettings({.intensity = 0.2,
                              .magnification = MagnificationFactor::x8,
                              .zoomWindowSize = 250,
                              .zoomWindowOffsetX = 12});
    EXPECT_EQ(manager().spotlightIntensity, 0.2);
    EXPECT_EQ(manager().magnificationFactor, MagnificationFactor::x8);
    EXPECT_EQ(settings().magnificationFactor, MagnificationFactor::x2);
    EXPECT_EQ(settings().zoomWindowSize, 250);
    EXPECT_EQ(settings().zoomWindowOffsetX, 12);
}

TEST_F(ZoomLensTest, an_update_of_the_settings_goes_in_the_order_of_its_values) {
    std::string order;
    const auto note = [&](auto& property, char letter) {
        return property.sinkDroppingFirst([&order, letter](const auto&) { order += letter; });
    };
    const auto intensity = note(manager().spotlightIntensity, 'i');
    const auto radius = note(manager().spotlightRadius, 'r');
    const auto magnification = note(manager().magnificationFactor, 'm');
    const auto size = note(settings().zoomWindowSize, 's');
    const auto offsetX = note(settings().zoomWindowOffsetX, 'x');
    const auto offsetY = note(settings().zoomWindowOffsetY, 'y');
    const auto crosshair = note(settings().showZoomCrosshair, 'c');
    manager().updateSettings({0.5, 100, MagnificationFactor::x4, 250, 10, 20, false});
    EXPECT_EQ(order, "irmsxyc");
}

} // namespace
} // namespace quillon::test
