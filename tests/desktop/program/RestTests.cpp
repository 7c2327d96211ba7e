#include "desktop/program/SettingsTest.h"
#include "desktop/support/WakeUps.h"

namespace quillon::test {
namespace {

/// The program while nobody uses it. No test waits for the minutes that it would have to be
/// watched: a program in which no time is waited for will not wake up.
class Rest : public SettingsTest {
protected:
    bool isAtRest() {
        return eventually([this] { return hasNothingDue(program->process().pid()); });
    }
    /// Moves the pointer until a feature has shown its window, or hidden it.
    bool comesTo(std::size_t windows) {
        return eventually([&] {
            input.moveTo({501, 400});
            input.moveTo({500, 400});
            return desktop.connection().shownWindows().size() == windows;
        });
    }
};

/// With a feature that follows the pointer, by the last key of its shortcut.
class RestAfterFollowing : public Rest, public testing::WithParamInterface<const char*> {};

TEST_F(Rest, no_time_is_waited_for_after_the_start) {
    start();
    EXPECT_TRUE(isAtRest());
}

TEST_P(RestAfterFollowing, no_time_is_waited_for_while_it_is_on_or_afterwards) {
    start();
    const std::size_t before = desktop.connection().shownWindows().size();
    pressShortcut(GetParam());
    ASSERT_TRUE(comesTo(before + 1));
    EXPECT_TRUE(isAtRest());
    pressShortcut(GetParam());
    ASSERT_TRUE(comesTo(before));
    EXPECT_TRUE(isAtRest());
}

INSTANTIATE_TEST_SUITE_P(HaloSpotlightLens, RestAfterFollowing, testing::Values("h", "l", "x"),
                         [](const auto& key) { return key.param; });

TEST_F(Rest, no_time_is_waited_for_with_a_drawing_and_after_annotation) {
    startAnnotating();
    EXPECT_TRUE(isAtRest());
    input.drag({{300, 500}, {400, 600}, {500, 500}});
    ASSERT_TRUE(eventually([this] { return screen.pixel({400, 600}) != kBackground; }));
    EXPECT_TRUE(isAtRest());
    toggleAnnotation();
    ASSERT_TRUE(eventually([this] { return !takesPointer(); }));
    EXPECT_TRUE(isAtRest());
}

TEST_F(Rest, no_time_is_waited_for_on_a_whiteboard_and_after_it) {
    start();
    toggleWhiteboard();
    ASSERT_TRUE(screen.waitForPixel({700, 500}, [](Rgb seen) { return seen.red > 230; }));
    EXPECT_TRUE(isAtRest());
    toggleWhiteboard();
    ASSERT_TRUE(showsBackground({700, 500}));
    EXPECT_TRUE(isAtRest());
}

TEST_F(Rest, no_time_is_waited_for_once_the_settings_were_looked_through) {
    startAndOpen();
    for (const Tab tab : {annotation, cursor, spotlight, shortcuts, about}) {
        showTab(tab);
    }
    EXPECT_TRUE(isAtRest());
    closeWindow();
    EXPECT_TRUE(isAtRest());
}

} // namespace
} // namespace quillon::test
