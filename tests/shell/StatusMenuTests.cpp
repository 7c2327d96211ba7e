#include "shell/StatusMenu.h"

#include <gtest/gtest.h>

namespace quillon::test {

namespace {

MenuItem entry(const char* title, const char* action, const char* keyEquivalent = "") {
    return {title, action, keyEquivalent, KeyEquivalentModifiers::command, false};
}

} // namespace

TEST(StatusMenu, the_entries_stand_in_order_with_their_actions_and_keys) {
    const std::vector<MenuItem> expected{
        entry("Toggle Annotation", "toggleAnnotation"),
        entry("Toggle Whiteboard", "toggleWhiteboard"),
        entry("Toggle Cursor Halo", "toggleCursorHalo"),
        entry("Toggle Spotlight", "toggleSpotlight"),
        entry("Toggle Zoom", "toggleZoom"),
        MenuItem::separator(),
        entry("Preferences...", "openSettings", ","),
        MenuItem::separator(),
        entry("Quit", "terminate:", "q"),
    };
    EXPECT_EQ(statusMenu().items, expected);
}

TEST(StatusMenu, the_command_menu_toggles_annotation_and_clears_without_keys) {
    const Menu menu = annotationCommandMenu();
    EXPECT_EQ(menu.title, "Annotation");
    const std::vector<MenuItem> expected{
        entry("Toggle Annotation Mode", "toggleAnnotation"),
        MenuItem::separator(),
        entry("Clear All", "clearAnnotations"),
    };
    EXPECT_EQ(menu.items, expected);
}

} // namespace quillon::test
