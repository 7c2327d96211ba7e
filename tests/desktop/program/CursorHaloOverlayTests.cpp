#include "desktop/program/CursorHaloTest.h"

namespace quillon::test {
namespace {

/// The halo over the overlay, which catches the pointer.
using CursorHaloOverOverlay = CursorHalo;

TEST_F(CursorHaloOverOverlay, a_click_in_the_overlay_plays_an_animation_that_is_gone_afterwards) {
    startAnnotating();
    toggleHalo();
    // Another program's window shows when the halo is live: the overlay catches the pointer.
    for (const int button : {1, 3}) {
        ASSERT_TRUE(clickPlays(button));
        EXPECT_TRUE(eventually([this] { return !isAnimated(); }));
    }
    EXPECT_EQ(below.pressCount(), 0);
}

TEST_F(CursorHaloOverOverlay, the_circle_of_a_click_grows_beyond_the_window_of_the_halo_whole) {
    startAnnotating();
    toggleHalo();
    ASSERT_TRUE(eventually([&] {
        input.click({500, 300}, 3);
        // Diameters of more than 60 are seen in full: to the side as well as on the diagonal.
        return eventually(
            [this] {
                return screen.pixel({500 + 38, 300}).green > kBackground.green + 8;
            },
            std::chrono::milliseconds(600));
    }));
    EXPECT_TRUE(eventually([this] { return !isAnimated(); }));
    EXPECT_TRUE(showsBackground({538, 300}));
}

TEST_F(CursorHaloOverOverlay, over_the_overlay_that_catches_the_pointer_it_holds_still) {
    startWithHaloAt({300, 300});
    toggleAnnotation();
    ASSERT_TRUE(eventually([this] { return takesPointer(); }));
    input.moveTo({500, 400});
    input.click({600, 200}, 3);
    EXPECT_TRUE(keepsRing({300, 300}));
    toggleAnnotation();
    ASSERT_TRUE(eventually([this] { return !takesPointer(); }));
    EXPECT_TRUE(haloComesTo({500, 400}));
}

TEST_F(CursorHaloOverOverlay, a_middle_click_in_the_overlay_plays_nothing) {
    startAnnotating();
    toggleHalo();
    ASSERT_TRUE(clickPlays());
    ASSERT_TRUE(eventually([this] { return !isAnimated(); }));
    input.click({500, 300}, 2);
    EXPECT_TRUE(stays([this] { return !isAnimated(); }, std::chrono::milliseconds(300)));
}

TEST_F(CursorHaloOverOverlay, a_storm_of_clicks_is_played_and_all_gone_afterwards) {
    startAnnotating();
    toggleHalo();
    ASSERT_TRUE(clickPlays());
    for (int click = 0; click < 100; ++click) {
        input.click({300 + click, 300}, 3);
    }
    EXPECT_TRUE(eventually([this] { return squareWindows(120).size() > 10; }));
    EXPECT_TRUE(eventually([this] { return !isAnimated(); }));
    toggleHalo();
    toggleAnnotation();
    EXPECT_TRUE(eventually([this] { return !takesPointer(); }));
}

TEST_F(CursorHaloOverOverlay, the_program_ends_quietly_in_the_middle_of_an_animation) {
    startAnnotating();
    toggleHalo();
    ASSERT_TRUE(clickPlays());
    stop();
    EXPECT_EQ(program->process().standardError(), "");
}

} // namespace
} // namespace quillon::test
