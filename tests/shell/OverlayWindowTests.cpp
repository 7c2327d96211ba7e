#include "shell/OverlayWindow.h"

#include "annotation/AnnotationCanvas.h"
#include "model/NotificationNames.h"
#include "support/FakeHost.h"
#include "support/WindowExpectations.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace quillon::test {

namespace {

constexpr CGRect someFrame{10, 20, 800, 600};

struct OverlayWindowTest : testing::Test {
    /// Notes every notification of that name.
    void listen(std::string_view name) {
        observations.push_back(host.notificationCenter().addObserver(
            name, [this](const Notification& notification) { heard.push_back(notification); }));
    }

    void screensChange() {
        host.notificationCenter().post(NSApplicationDidChangeScreenParametersNotification);
    }

    FakeHost host;
    std::vector<Notification> heard;
    std::vector<Cancellable> observations;
};

} // namespace

TEST_F(OverlayWindowTest, it_is_a_transparent_borderless_window_above_all_others_on_every_space) {
    const OverlayWindow window(someFrame);
    EXPECT_EQ(window.frame(), someFrame);
    expectToFloatTransparently(window);
}

TEST_F(OverlayWindowTest, it_ignores_the_mouse_until_annotation_mode_is_set) {
    OverlayWindow window(someFrame);
    EXPECT_TRUE(window.ignoresMouseEvents());
    window.setAnnotationMode(true);
    EXPECT_FALSE(window.ignoresMouseEvents());
    window.setAnnotationMode(false);
    EXPECT_TRUE(window.ignoresMouseEvents());
}

TEST_F(OverlayWindowTest, annotation_mode_set_twice_still_takes_the_mouse) {
    OverlayWindow window(someFrame);
    window.setAnnotationMode(true);
    window.setAnnotationMode(true);
    EXPECT_FALSE(window.ignoresMouseEvents());
}

TEST_F(OverlayWindowTest, setting_the_mode_neither_orders_the_window_nor_posts) {
    listen(NotificationName::annotationModeChanged);
    OverlayWindow window(someFrame);
    host.windows.calls.clear();
    window.setAnnotationMode(true);
    EXPECT_EQ(host.windows.calls, std::vector<std::string>{"takesMouse"});
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(heard.empty());
}

TEST_F(OverlayWindowTest, it_may_become_key_though_it_is_borderless) {
    EXPECT_TRUE(OverlayWindow(someFrame).canBecomeKeyWindow());
}

TEST_F(OverlayWindowTest, text_entry_finds_it_among_the_windows) {
    EXPECT_EQ(OverlayWindow(someFrame).identifier(), overlayWindowIdentifier);
}

TEST_F(OverlayWindowTest, it_is_not_on_screen_after_construction) {
    EXPECT_FALSE(OverlayWindow(someFrame).isVisible());
}

TEST_F(OverlayWindowTest, its_content_is_the_overlays_root_view_and_grows_with_it) {
    const OverlayWindow window(someFrame);
    const auto& hosting = window.hostingView();
    ASSERT_TRUE(hosting);
    EXPECT_EQ(window.contentView(), hosting);
    EXPECT_TRUE(dynamic_cast<OverlayContainerView*>(hosting->rootView.get()));
    EXPECT_EQ(hosting->frame, (CGRect{0, 0, 800, 600}));
    EXPECT_EQ(hosting->autoresizingMask, 0x2U | 0x10U);
}

TEST_F(OverlayWindowTest, without_a_rectangle_it_covers_the_main_screen) {
    host.screens.all.front().frame = {0, 0, 2560, 1440};
    EXPECT_EQ(OverlayWindow().frame(), (CGRect{0, 0, 2560, 1440}));
}

TEST_F(OverlayWindowTest, without_a_rectangle_and_without_a_screen_it_covers_nothing) {
    host.screens.all.clear();
    EXPECT_EQ(OverlayWindow().frame(), CGRect::zero);
}

TEST_F(OverlayWindowTest, it_follows_the_main_screen_at_once_when_screens_change) {
    const OverlayWindow window(someFrame);
    host.screens.all = {{{0, 0, 1280, 720}, {}, 1, "First"}, {{1280, 0, 640, 480}, {}, 1, "Other"}};
    screensChange();
    EXPECT_EQ(window.frame(), (CGRect{0, 0, 1280, 720}));
}

TEST_F(OverlayWindowTest, a_change_that_leaves_no_screen_changes_nothing) {
    const OverlayWindow window(someFrame);
    host.screens.all.clear();
    host.windows.calls.clear();
    screensChange();
    EXPECT_EQ(window.frame(), someFrame);
    EXPECT_TRUE(host.windows.calls.empty());
}

TEST_F(OverlayWindowTest, a_window_that_is_gone_hears_no_change_of_screens) {
    { const OverlayWindow window(someFrame); }
    host.windows.calls.clear();
    screensChange();
    EXPECT_TRUE(host.windows.calls.empty());
}

TEST_F(OverlayWindowTest, it_moves_to_the_screen_that_it_is_told) {
    OverlayWindow window(someFrame);
    window.updateForScreen({{-1920, 40, 1920, 1080}, {}, 2, "Left"});
    EXPECT_EQ(window.frame(), (CGRect{-1920, 40, 1920, 1080}));
}

TEST_F(OverlayWindowTest, toggling_visibility_leaves_a_click_through_window_as_it_is_and_says_so) {
    listen(NotificationName::annotationModeChanged);
    OverlayWindow window(someFrame);
    window.toggleOverlayVisibility();
    EXPECT_TRUE(window.ignoresMouseEvents());
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_EQ(heard[0].object, nullptr);
    EXPECT_EQ(heard[0].userInfo, (NotificationUserInfo{{"isEnabled", false}}));
}

TEST_F(OverlayWindowTest, toggling_visibility_leaves_a_capturing_window_as_it_is_and_says_so) {
    listen(NotificationName::annotationModeChanged);
    OverlayWindow window(someFrame);
    window.setAnnotationMode(true);
    host.windows.calls.clear();
    window.toggleOverlayVisibility();
    EXPECT_FALSE(window.ignoresMouseEvents());
    EXPECT_EQ(host.windows.calls, std::vector<std::string>{"takesMouse"}) << "asserted again";
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_EQ(heard[0].userInfo, (NotificationUserInfo{{"isEnabled", true}}));
}

TEST_F(OverlayWindowTest, its_commands_are_notifications_without_object_or_payload) {
    listen(NotificationName::clearAnnotations);
    listen(NotificationName::undoAnnotation);
    listen(NotificationName::redoAnnotation);
    OverlayWindow window(someFrame);
    window.clearAnnotations();
    window.undo();
    window.redo();
    ASSERT_EQ(heard.size(), 3U);
    EXPECT_EQ(heard[0].name, "clearAnnotations");
    EXPECT_EQ(heard[1].name, "undoAnnotation");
    EXPECT_EQ(heard[2].name, "redoAnnotation");
    for (const Notification& notification : heard) {
        EXPECT_EQ(notification.object, nullptr);
        EXPECT_TRUE(notification.userInfo.empty());
    }
}

} // namespace quillon::test
