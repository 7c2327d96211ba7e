#include "desktop/program/ProgramTest.h"
#include "desktop/support/WakeUps.h"

namespace quillon::test {
namespace {

/// Halo, spotlight and annotation at once: a ring of 34 points in a circle of 60, and a red pen.
class Presenter : public ProgramTest {
protected:
    void startWithHaloAndSpotlightAt(Pixel place) {
        prepareTool(DrawingTool::pen);
        prepare([](AppSettings& settings) {
            settings.spotlightRadius = 60;
            settings.spotlightIntensity = 0.7;
        });
        start();
        toggleHalo();
        toggleSpotlight();
        ASSERT_TRUE(isDimmed({10, 590}));
        ASSERT_TRUE(eventually([&] {
            input.moveTo({place.x + 1, place.y});
            input.moveTo(place);
            return isFollowedTo(place, std::chrono::milliseconds(200));
        }));
    }

    bool isRing(Pixel place) { return isNear(screen.pixel(place), {50, 173, 230}, 30); }
    bool isFollowedTo(Pixel place, std::chrono::milliseconds bound = defaultBound) {
        return eventually(
            [&] {
                return isRing({place.x + 16, place.y}) && isRing({place.x - 17, place.y}) &&
                       screen.pixel(place) == kBackground &&
                       screen.pixel({place.x + 50, place.y}) == kBackground &&
                       isDark(screen.pixel({place.x + 65, place.y}));
            },
            bound);
    }
    bool isDimmed(Pixel place) { return screen.waitForPixel(place, isDark); }

    static bool isDark(Rgb seen) { return isNear(seen, {12, 18, 27}, 1); }
};

TEST_F(Presenter, clicks_reach_the_window_below_while_all_of_it_is_on_the_screen) {
    startWithHaloAndSpotlightAt({450, 300});
    toggleAnnotation();
    ASSERT_TRUE(eventually([this] { return takesPointer(); }));
    input.drag({{200, 400}, {300, 400}});
    toggleAnnotation();
    ASSERT_TRUE(eventually([this] { return !takesPointer(); }));
    ASSERT_EQ(below.pressCount(), 0);

    input.moveTo({500, 200});
    EXPECT_TRUE(isFollowedTo({500, 200}));
    input.click({500, 200});
    EXPECT_TRUE(eventually([this] { return below.pressCount() == 1; }));
    // Neither the dark nor a stroke is in the way.
    input.click({800, 500}, 3);
    EXPECT_TRUE(eventually([this] { return below.pressCount() == 2; }));
    input.click({250, 400});
    EXPECT_TRUE(eventually([this] { return below.pressCount() == 3; }));
    EXPECT_TRUE(showsInk({250, 400}));
}

TEST_F(Presenter, drawing_works_in_the_circle_and_in_the_dark_and_holds_both_still) {
    startWithHaloAndSpotlightAt({450, 300});
    toggleAnnotation();
    ASSERT_TRUE(eventually([this] { return takesPointer(); }));
    input.drag({{440, 340}, {460, 340}});
    EXPECT_TRUE(showsInk({450, 340}));
    input.drag({{700, 500}, {800, 500}});
    EXPECT_TRUE(showsInk({750, 500}));
    EXPECT_EQ(below.pressCount(), 0);
    EXPECT_TRUE(isFollowedTo({450, 300}));
}

TEST_F(Presenter, each_follows_alone_and_with_both_off_the_pointer_wakes_nobody) {
    startWithHaloAndSpotlightAt({450, 300});
    toggleHalo();
    ASSERT_TRUE(screen.waitForColor({466, 300}, kBackground));
    input.moveTo({300, 300});
    EXPECT_TRUE(isDimmed({450, 300}));
    EXPECT_TRUE(screen.waitForColor({300, 300}, kBackground));

    toggleSpotlight();
    EXPECT_TRUE(showsBackground({10, 590}));
    EXPECT_TRUE(eventually([this] {
        const long before = wakeUpsOf(program->process().pid());
        for (int x = 100; x < 300; ++x) {
            input.moveTo({x, 400});
        }
        return stays([&] { return wakeUpsOf(program->process().pid()) == before; },
                     std::chrono::milliseconds(100));
    }));

    toggleHalo();
    EXPECT_TRUE(eventually([this] {
        input.moveTo({601, 300});
        input.moveTo({600, 300});
        return eventually([this] { return isRing({616, 300}); }, std::chrono::milliseconds(200));
    }));
    EXPECT_EQ(screen.pixel({665, 300}), kBackground);
}

} // namespace
} // namespace quillon::test
