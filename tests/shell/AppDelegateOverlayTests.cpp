#include "model/NotificationNames.h"
#include "shell/ShellTest.h"

#include <algorithm>

namespace quillon::test {

namespace {

using AppDelegateOverlayTest = ShellTest;

DrawingStroke someStroke() {
    return DrawingStroke({.points = {{1, 2}, {3, 4}},
                          .color = Color::cyan,
                          .lineWidth = 4,
                          .tool = DrawingTool::pen});
}

long count(const std::vector<std::string>& calls, std::string_view call) {
    return std::ranges::count(calls, call);
}

} // namespace

// When the overlay is made.

TEST_F(AppDelegateOverlayTest, a_first_launch_makes_no_overlay_window) {
    launch();
    EXPECT_FALSE(delegate->overlayWindow());
    EXPECT_TRUE(host.application.windows().empty());
}

TEST_F(AppDelegateOverlayTest, a_launch_with_annotation_stored_shows_an_overlay_that_captures) {
    host.userDefaults.setBool("isAnnotationEnabled", true);
    launch();
    ASSERT_TRUE(delegate->overlayWindow());
    EXPECT_TRUE(delegate->overlayWindow()->isVisible());
    EXPECT_FALSE(delegate->overlayWindow()->ignoresMouseEvents());
}

TEST_F(AppDelegateOverlayTest, the_stored_mode_takes_effect_one_turn_after_the_launch) {
    host.userDefaults.setBool("isAnnotationEnabled", true);
    delegate->applicationDidFinishLaunching();
    EXPECT_FALSE(delegate->overlayWindow());
    host.mainQueue.run();
    EXPECT_TRUE(delegate->overlayWindow());
}

TEST_F(AppDelegateOverlayTest, a_stored_whiteboard_alone_makes_no_overlay) {
    host.userDefaults.setBool("isWhiteboardMode", true);
    launch();
    EXPECT_FALSE(delegate->overlayWindow());
}

TEST_F(AppDelegateOverlayTest, the_overlay_covers_the_main_screen) {
    host.screens.all = {{{0, 0, 1280, 720}, {}, 1, "Main"}, {{1280, 0, 640, 480}, {}, 1, "Other"}};
    launch();
    delegate->toggleAnnotation();
    EXPECT_EQ(delegate->overlayWindow()->frame(), (CGRect{0, 0, 1280, 720}));
}

TEST_F(AppDelegateOverlayTest, with_no_screen_known_the_overlay_is_1024_by_768) {
    host.screens.all.clear();
    launch();
    delegate->toggleAnnotation();
    EXPECT_EQ(delegate->overlayWindow()->frame(), (CGRect{0, 0, 1024, 768}));
}

TEST_F(AppDelegateOverlayTest, the_overlay_is_made_once) {
    launch();
    delegate->toggleAnnotation();
    const OverlayWindow* first = delegate->overlayWindow();
    delegate->toggleAnnotation();
    delegate->toggleWhiteboard();
    host.mainQueue.run();
    EXPECT_EQ(delegate->overlayWindow(), first);
    EXPECT_EQ(host.application.windows().size(), 1U);
}

TEST_F(AppDelegateOverlayTest, a_new_overlay_gets_its_mode_before_it_comes_on_screen) {
    launch();
    delegate->toggleAnnotation();
    const auto& calls = host.windows.calls;
    EXPECT_LT(std::ranges::find(calls, "takesMouse"), std::ranges::find(calls, "orderFront"));
}

// Toggling annotation.

TEST_F(AppDelegateOverlayTest, toggling_annotation_flips_the_setting_and_the_way_of_the_pointer) {
    launch();
    delegate->toggleAnnotation();
    EXPECT_TRUE(settings().isAnnotationEnabled);
    EXPECT_FALSE(delegate->overlayWindow()->ignoresMouseEvents());
    delegate->toggleAnnotation();
    EXPECT_FALSE(settings().isAnnotationEnabled);
    EXPECT_TRUE(delegate->overlayWindow()->ignoresMouseEvents());
}

TEST_F(AppDelegateOverlayTest, annotation_switched_off_leaves_the_window_and_its_drawings) {
    launch();
    delegate->toggleAnnotation();
    host.mainQueue.run();
    annotations().addStroke(someStroke());
    delegate->toggleAnnotation();
    host.mainQueue.run();
    EXPECT_TRUE(delegate->overlayWindow()->isVisible());
    EXPECT_EQ(count(host.windows.calls, "orderOut"), 0);
    EXPECT_EQ(annotations().strokes->size(), 1U);
}

TEST_F(AppDelegateOverlayTest, toggling_annotation_leaves_the_whiteboard_as_it_is) {
    launch();
    delegate->toggleWhiteboard();
    delegate->toggleAnnotation();
    EXPECT_FALSE(settings().isAnnotationEnabled);
    EXPECT_TRUE(settings().isWhiteboardMode);
    EXPECT_TRUE(delegate->overlayWindow()->ignoresMouseEvents());
}

TEST_F(AppDelegateOverlayTest, toggling_annotation_repeats_its_effect_one_turn_later) {
    launch();
    delegate->toggleAnnotation();
    host.windows.calls.clear();
    host.mainQueue.run();
    EXPECT_EQ(host.windows.calls, (std::vector<std::string>{"orderFront", "takesMouse"}));
}

TEST_F(AppDelegateOverlayTest, toggling_annotation_brings_the_overlay_to_the_front_at_once) {
    launch();
    delegate->toggleAnnotation();
    host.mainQueue.run();
    host.windows.calls.clear();
    delegate->toggleAnnotation();
    EXPECT_EQ(host.windows.calls, (std::vector<std::string>{"ignoresMouse", "orderFront"}));
}

TEST_F(AppDelegateOverlayTest, annotation_switched_off_brings_an_absent_overlay_into_being) {
    host.userDefaults.setBool("isAnnotationEnabled", true);
    delegate->applicationDidFinishLaunching();
    delegate->toggleAnnotation();
    ASSERT_TRUE(delegate->overlayWindow());
    EXPECT_TRUE(delegate->overlayWindow()->ignoresMouseEvents());
}

TEST_F(AppDelegateOverlayTest, a_click_on_the_status_button_toggles_annotation) {
    launch();
    delegate->menuBarButtonClicked();
    EXPECT_TRUE(settings().isAnnotationEnabled);
}

// Toggling the whiteboard.

TEST_F(AppDelegateOverlayTest, the_whiteboard_turns_annotation_on_and_clears) {
    launch();
    delegate->toggleAnnotation();
    annotations().addStroke(someStroke());
    delegate->toggleAnnotation();
    delegate->toggleWhiteboard();
    EXPECT_TRUE(settings().isWhiteboardMode);
    EXPECT_TRUE(settings().isAnnotationEnabled);
    EXPECT_FALSE(delegate->overlayWindow()->ignoresMouseEvents());
    EXPECT_TRUE(annotations().strokes->empty());
}

TEST_F(AppDelegateOverlayTest, a_second_whiteboard_leaves_annotation_on_and_clears_again) {
    launch();
    delegate->toggleWhiteboard();
    annotations().addStroke(someStroke());
    delegate->toggleWhiteboard();
    EXPECT_FALSE(settings().isWhiteboardMode);
    EXPECT_TRUE(settings().isAnnotationEnabled);
    EXPECT_FALSE(delegate->overlayWindow()->ignoresMouseEvents());
    EXPECT_TRUE(annotations().strokes->empty());
}

TEST_F(AppDelegateOverlayTest, a_whiteboard_that_goes_while_annotation_is_off_leaves_it_off) {
    launch();
    delegate->toggleWhiteboard();
    delegate->toggleAnnotation();
    delegate->toggleWhiteboard();
    host.mainQueue.run();
    EXPECT_FALSE(settings().isWhiteboardMode);
    EXPECT_FALSE(settings().isAnnotationEnabled);
    EXPECT_TRUE(delegate->overlayWindow()->ignoresMouseEvents());
}

TEST_F(AppDelegateOverlayTest,
       a_stored_whiteboard_that_goes_first_leaves_an_overlay_to_click_through) {
    host.userDefaults.setBool("isWhiteboardMode", true);
    launch();
    delegate->toggleWhiteboard();
    EXPECT_FALSE(settings().isWhiteboardMode);
    EXPECT_FALSE(settings().isAnnotationEnabled);
    ASSERT_TRUE(delegate->overlayWindow());
    EXPECT_TRUE(delegate->overlayWindow()->isVisible());
    EXPECT_TRUE(delegate->overlayWindow()->ignoresMouseEvents());
}

// The setting itself.

TEST_F(AppDelegateOverlayTest, the_setting_switched_on_elsewhere_makes_the_overlay_a_turn_later) {
    launch();
    settings().isAnnotationEnabled = true;
    EXPECT_FALSE(delegate->overlayWindow());
    host.mainQueue.run();
    ASSERT_TRUE(delegate->overlayWindow());
    EXPECT_FALSE(delegate->overlayWindow()->ignoresMouseEvents());
}

TEST_F(AppDelegateOverlayTest, a_reset_of_the_settings_lets_the_pointer_through_again) {
    launch();
    delegate->toggleWhiteboard();
    settings().resetToDefaults();
    host.mainQueue.run();
    EXPECT_FALSE(settings().isWhiteboardMode);
    EXPECT_TRUE(delegate->overlayWindow()->ignoresMouseEvents());
}

// Screens.

TEST_F(AppDelegateOverlayTest, a_change_of_screens_is_followed_at_once_and_again_a_turn_later) {
    launch();
    delegate->toggleAnnotation();
    host.mainQueue.run();
    host.windows.calls.clear();
    host.screens.all = {{{0, 0, 800, 600}, {}, 1, "New"}};
    host.notificationCenter().post(NSApplicationDidChangeScreenParametersNotification);
    EXPECT_EQ(count(host.windows.calls, "frame"), 1);
    EXPECT_EQ(delegate->overlayWindow()->frame(), (CGRect{0, 0, 800, 600}));
    host.mainQueue.run();
    EXPECT_EQ(count(host.windows.calls, "frame"), 2);
    EXPECT_EQ(delegate->overlayWindow()->frame(), (CGRect{0, 0, 800, 600}));
}

TEST_F(AppDelegateOverlayTest, when_every_screen_goes_the_overlay_shrinks_to_nothing_a_turn_later) {
    launch();
    delegate->toggleAnnotation();
    host.mainQueue.run();
    const CGRect before = delegate->overlayWindow()->frame();
    host.screens.all.clear();
    host.notificationCenter().post(NSApplicationDidChangeScreenParametersNotification);
    EXPECT_EQ(delegate->overlayWindow()->frame(), before);
    host.mainQueue.run();
    EXPECT_EQ(delegate->overlayWindow()->frame(), CGRect::zero);
}

TEST_F(AppDelegateOverlayTest, a_change_of_screens_before_there_is_an_overlay_makes_none) {
    launch();
    post(NSApplicationDidChangeScreenParametersNotification);
    EXPECT_FALSE(delegate->overlayWindow());
}

// Notifications.

TEST_F(AppDelegateOverlayTest, the_notifications_toggle_in_a_later_turn_than_they_come) {
    launch();
    host.notificationCenter().post(NotificationName::toggleAnnotation);
    EXPECT_FALSE(settings().isAnnotationEnabled);
    host.mainQueue.run();
    EXPECT_TRUE(settings().isAnnotationEnabled);

    post(NotificationName::toggleWhiteboard);
    EXPECT_TRUE(settings().isWhiteboardMode);
}

TEST_F(AppDelegateOverlayTest, halo_spotlight_and_lens_leave_the_overlay_alone) {
    launch();
    for (const auto name : {NotificationName::toggleCursorHalo, NotificationName::toggleSpotlight,
                            NotificationName::toggleZoom}) {
        post(name);
    }
    EXPECT_FALSE(delegate->overlayWindow());
    EXPECT_FALSE(settings().isAnnotationEnabled);
}

TEST_F(AppDelegateOverlayTest, clear_undo_and_redo_before_there_is_an_overlay_are_lost) {
    launch();
    post(NotificationName::undoAnnotation);
    post(NotificationName::redoAnnotation);
    post(NotificationName::clearAnnotations);
    EXPECT_FALSE(delegate->overlayWindow());
    delegate->toggleAnnotation();
    EXPECT_FALSE(annotations().canUndo());
    EXPECT_FALSE(annotations().canRedo());
}

TEST_F(AppDelegateOverlayTest, undo_and_redo_reach_the_overlay_once_it_is_there) {
    launch();
    delegate->toggleAnnotation();
    annotations().addStroke(someStroke());
    post(NotificationName::undoAnnotation);
    EXPECT_TRUE(annotations().strokes->empty());
    post(NotificationName::redoAnnotation);
    EXPECT_EQ(annotations().strokes->size(), 1U);
}

} // namespace quillon::test
