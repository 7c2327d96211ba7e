#include "desktop/program/ProgramTest.h"
#include "desktop/support/ScreenSize.h"

namespace quillon::test {
namespace {

/// A spotlight of 60 points that dims by 70 percent.
class Spotlight : public ProgramTest {
protected:
    Spotlight()
        : Spotlight({.width = 900, .height = 600}) {}
    explicit Spotlight(const VirtualDesktop::Options& options)
        : ProgramTest(options) {}

    void startAt(Pixel place) {
        switchOnAt(place);
        EXPECT_TRUE(isDimmed({10, 590}));
    }
    void switchOnAt(Pixel place) {
        prepare([](AppSettings& settings) {
            settings.spotlightRadius = 60;
            settings.spotlightIntensity = 0.7;
        });
        start();
        input.moveTo(place);
        toggleSpotlight();
    }

    bool isDimmed(Pixel place) {
        // Three tenths of each component of the background.
        return screen.waitForPixel(place, [](Rgb seen) { return isNear(seen, {12, 18, 27}, 1); });
    }
    bool isClear(Pixel place) {
        return screen.waitForPixel(place, [](Rgb seen) { return seen == kBackground; });
    }
};

TEST_F(Spotlight, the_screen_is_dimmed_but_for_a_hard_edged_circle_round_the_pointer) {
    startAt({450, 300});
    EXPECT_TRUE(isDimmed({10, 590}));
    EXPECT_TRUE(isDimmed({890, 50}));
    EXPECT_TRUE(isClear({450, 300}));
    for (const int side : {-1, 1}) {
        EXPECT_TRUE(isClear({450 + side * 57, 300}));
        EXPECT_TRUE(isDimmed({450 + side * 63, 300}));
        EXPECT_TRUE(isClear({450, 300 + side * 57}));
        EXPECT_TRUE(isDimmed({450, 300 + side * 63}));
        // On the diagonal the edge lies at 42.4 of either.
        EXPECT_TRUE(isClear({450 + side * 40, 300 + side * 40}));
        EXPECT_TRUE(isDimmed({450 + side * 45, 300 + side * 45}));
    }
}

TEST_F(Spotlight, the_circle_follows_the_pointer_and_leaves_no_trace) {
    startAt({450, 300});
    ASSERT_TRUE(isClear({450, 300}));
    for (int x = 450; x >= 200; x -= 5) {
        input.moveTo({x, 300});
    }
    EXPECT_TRUE(isClear({200, 300}));
    for (int x = 270; x <= 520; x += 10) {
        EXPECT_TRUE(isDimmed({x, 300})) << x;
    }
    input.moveTo({700, 150});
    EXPECT_TRUE(isClear({700, 150}));
    EXPECT_TRUE(isDimmed({200, 300}));
}

TEST_F(Spotlight, at_a_corner_of_the_screen_a_quarter_of_the_circle_is_clear) {
    startAt({450, 300});
    ASSERT_TRUE(isClear({450, 300}));
    input.moveTo({0, 599});
    EXPECT_TRUE(isClear({0, 599}));
    EXPECT_TRUE(isClear({40, 560}));
    EXPECT_TRUE(isDimmed({45, 554}));
    EXPECT_TRUE(isDimmed({450, 300}));
}

TEST_F(Spotlight, clicks_reach_the_window_below_in_the_circle_and_in_the_dark) {
    startAt({450, 300});
    input.click({450, 300});
    EXPECT_TRUE(eventually([this] { return below.pressCount() == 1; }));
    // The circle has yet to come here when the button goes down.
    input.click({800, 500});
    EXPECT_TRUE(eventually([this] { return below.pressCount() == 2; }));
}

TEST_F(Spotlight, it_does_not_take_the_keyboard) {
    below.activate();
    ASSERT_TRUE(eventually([this] { return below.hasKeyboard(); }));
    startAt({450, 300});
    EXPECT_TRUE(below.hasKeyboard());
}

TEST_F(Spotlight, while_a_button_is_held_the_circle_stays) {
    startAt({450, 300});
    ASSERT_TRUE(isClear({450, 300}));
    input.press();
    // The window manager looks at the press first, and holds the pointer up meanwhile.
    ASSERT_TRUE(eventually([this] { return below.pressCount() == 1; }));
    for (int x = 450; x <= 700; x += 10) {
        input.moveTo({x, 300});
    }
    EXPECT_TRUE(stays(
        [this] {
            return screen.pixel({450, 300}) == kBackground;
        },
        std::chrono::milliseconds(200)));
    EXPECT_TRUE(isDimmed({700, 300}));
    input.release();
    input.moveTo({701, 300});
    EXPECT_TRUE(isClear({700, 300}));
    EXPECT_TRUE(isDimmed({450, 300}));
}

TEST_F(Spotlight, switched_off_nothing_is_left_and_switched_on_again_it_stands_at_the_pointer) {
    startAt({450, 300});
    toggleSpotlight();
    EXPECT_TRUE(isClear({10, 590}));
    input.moveTo({200, 200});
    toggleSpotlight();
    EXPECT_TRUE(isClear({200, 200}));
    EXPECT_TRUE(isDimmed({450, 300}));
    EXPECT_TRUE(isDimmed({10, 590}));
}

TEST_F(Spotlight, what_is_drawn_stays_to_be_seen_in_the_circle) {
    prepareTool(DrawingTool::pen);
    startAt({450, 300});
    toggleAnnotation();
    ASSERT_TRUE(eventually([this] { return takesPointer(); }));
    input.drag({{430, 300}, {470, 300}});
    EXPECT_TRUE(showsInk({450, 300}));
}

TEST_F(Spotlight, over_the_overlay_that_catches_the_pointer_the_circle_stays) {
    startAt({450, 300});
    ASSERT_TRUE(isClear({450, 300}));
    toggleAnnotation();
    ASSERT_TRUE(eventually([this] { return takesPointer(); }));
    input.moveTo({700, 200});
    EXPECT_TRUE(stays(
        [this] {
            return screen.pixel({450, 300}) == kBackground;
        },
        std::chrono::milliseconds(200)));
    EXPECT_TRUE(isDimmed({700, 200}));
}

TEST_F(Spotlight, switched_on_over_the_overlay_it_dims_what_is_drawn_there) {
    prepareTool(DrawingTool::pen);
    prepare([](AppSettings& settings) {
        settings.spotlightRadius = 60;
        settings.spotlightIntensity = 0.7;
    });
    startAnnotating();
    input.drag({{200, 300}, {300, 300}});
    ASSERT_TRUE(showsInk({250, 300}));
    input.moveTo({700, 300});
    toggleSpotlight();
    EXPECT_TRUE(screen.waitForPixel({250, 300}, [](Rgb seen) {
        return isNear(seen, {76, 0, 0}, 2);
    }));
    input.drag({{650, 300}, {750, 300}});
    EXPECT_TRUE(showsInk({700, 300}));
    toggleSpotlight();
    EXPECT_TRUE(showsInk({250, 300}));
}

TEST_F(Spotlight, the_circle_passes_from_one_display_to_the_other) {
    splitScreen(desktop.connection(), 450);
    startAt({300, 300});
    for (const int x : {440, 449, 450, 451, 700, 455, 200}) {
        input.moveTo({x, 300});
        EXPECT_TRUE(isClear({x - 57, 300})) << x;
        EXPECT_TRUE(isClear({x + 57, 300})) << x;
        EXPECT_TRUE(isDimmed({x - 63, 300})) << x;
        EXPECT_TRUE(isDimmed({x + 63, 300})) << x;
    }
}

TEST_F(Spotlight, a_gap_between_two_displays_is_dimmed_and_shows_its_part_of_the_circle) {
    splitScreen(desktop.connection(), 400, 100);
    startAt({370, 300});
    EXPECT_TRUE(isClear({420, 300}));
    EXPECT_TRUE(isDimmed({440, 300}));
    input.moveTo({530, 300});
    EXPECT_TRUE(isClear({480, 300}));
    EXPECT_TRUE(isClear({585, 300}));
    EXPECT_TRUE(isDimmed({420, 300}));
    EXPECT_TRUE(isDimmed({880, 590}));
}

/// Where no window can be translucent, the dark is complete.
struct SpotlightWithoutCompositor : Spotlight {
    SpotlightWithoutCompositor()
        : Spotlight({.width = 900, .height = 600, .hasCompositor = false}) {}

    bool isBlack(Pixel place) {
        return screen.waitForPixel(place, [](Rgb seen) { return seen == Rgb{0, 0, 0}; });
    }
};

TEST_F(SpotlightWithoutCompositor, the_circle_is_clear_and_follows_the_pointer) {
    switchOnAt({450, 300});
    EXPECT_TRUE(isBlack({10, 590}));
    EXPECT_TRUE(isBlack({450 + 63, 300}));
    EXPECT_TRUE(isClear({450 + 57, 300}));
    for (int x = 450; x >= 200; x -= 10) {
        input.moveTo({x, 300});
    }
    EXPECT_TRUE(isClear({200, 300}));
    for (int x = 270; x <= 520; x += 10) {
        EXPECT_TRUE(isBlack({x, 300})) << x;
    }
    toggleSpotlight();
    EXPECT_TRUE(isClear({10, 590}));
}

} // namespace
} // namespace quillon::test
