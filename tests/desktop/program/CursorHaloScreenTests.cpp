#include "desktop/program/CursorHaloTest.h"
#include "desktop/support/DesktopScale.h"
#include "desktop/support/ScreenSize.h"

#include <string>

namespace quillon::test {
namespace {

TEST_F(CursorHalo, a_compositor_that_goes_leaves_a_ring_with_the_screen_inside) {
    startWithHaloAt({300, 300});
    desktop.stopCompositor();
    EXPECT_TRUE(haloComesTo({400, 300}));
    EXPECT_TRUE(showsBackground({400 + 18, 300 + 18}));
    EXPECT_TRUE(showsBackground({300 + 16, 300}));
}

TEST_F(CursorHalo, it_crosses_from_one_display_to_the_other) {
    splitScreen(desktop.connection(), 450);
    startWithHaloAt({300, 300});
    for (const int x : {440, 449, 450, 451, 460, 700, 455, 200}) {
        input.moveTo({x, 300});
        EXPECT_TRUE(hasRing({x, 300})) << x;
    }
}

/// At a scale of so many percent, as the user's session states it.
class ScaledCursorHalo : public CursorHalo, public testing::WithParamInterface<int> {};

TEST_P(ScaledCursorHalo, the_ring_grows_and_the_pointer_stays_in_its_middle) {
    const std::string resources = "Xft.dpi:\t" + std::to_string(96 * GetParam() / 100) + "\n";
    xcb_change_property(desktop.connection().get(), XCB_PROP_MODE_REPLACE,
                        desktop.connection().root(), XCB_ATOM_RESOURCE_MANAGER, XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(resources.size()), resources.c_str());
    desktop.connection().synchronise();
    start();
    toggleHalo();
    const int radius = kRadius * GetParam() / 100;
    for (const Pixel place : {Pixel{301, 300}, Pixel{302, 303}, Pixel{603, 407}}) {
        EXPECT_TRUE(haloComesTo(place, radius)) << place.x;
    }
}

INSTANTIATE_TEST_SUITE_P(Scales, ScaledCursorHalo, testing::Values(125, 150, 200));

TEST_F(CursorHalo, it_follows_changes_of_the_scale_and_the_pointer_stays_in_its_middle) {
    DesktopScale scale(desktop.display(), 100);
    startWithHaloAt({300, 300});
    for (const int percent : {200, 125, 100}) {
        scale.change(percent);
        const int radius = kRadius * percent / 100;
        for (const Pixel place : {Pixel{305, 300}, Pixel{600, 400}}) {
            // A move that the program hears before the scale has places a halo of the old size.
            EXPECT_TRUE(haloComesTo(place, radius)) << percent;
        }
    }
}

class CursorHaloWithoutCompositor : public CursorHalo {
protected:
    CursorHaloWithoutCompositor()
        : CursorHalo({.width = 900, .height = 600, .hasCompositor = false}) {}
};

TEST_F(CursorHaloWithoutCompositor, the_screen_is_seen_inside_and_round_the_ring) {
    startWithHaloAt({300, 300});
    EXPECT_TRUE(showsBackground({318, 318}));
    input.moveTo({500, 400});
    EXPECT_TRUE(hasRing({500, 400}));
    EXPECT_TRUE(showsBackground({518, 418}));
    EXPECT_TRUE(showsBackground({316, 300}));
    input.click({500, 400});
    EXPECT_TRUE(eventually([this] { return below.pressCount() == 1; }));
}

TEST_F(CursorHaloWithoutCompositor, a_translucent_colour_is_shown_as_itself_and_not_darkened) {
    startWithHaloAt({300, 300});
    // The edge of the line is translucent, and has the colour of the line all the same.
    const auto isHaloOrScreen = [&](Pixel place) {
        const Rgb seen = screen.pixel(place);
        return isHalo(seen) || seen == kBackground;
    };
    for (int x = 280; x < 320; ++x) {
        for (int y = 280; y < 320; ++y) {
            // What the halo left on its way is for the window below to paint again.
            EXPECT_TRUE(eventually([&] {
                return isHaloOrScreen({x, y});
            })) << x
                << ", " << y << ": " << screen.pixel({x, y});
        }
    }
}

TEST_F(CursorHaloWithoutCompositor, the_overlay_that_holds_the_pointer_holds_the_halo_still) {
    startWithHaloAt({300, 300});
    toggleAnnotation();
    ASSERT_TRUE(eventually([this] {
        const int before = below.pressCount();
        if (!isPointerHeld()) {
            return false;
        }
        input.click({700, 500}, 3);
        return eventually([this] { return isAnimated(); }) && isPointerHeld() &&
               below.pressCount() == before;
    }));
    const auto before = cornerOf(squareWindows(40).at(0));
    input.moveTo({600, 200});
    EXPECT_TRUE(stays([&] { return cornerOf(squareWindows(40).at(0)) == before; },
                      std::chrono::milliseconds(200)));
}

} // namespace
} // namespace quillon::test
