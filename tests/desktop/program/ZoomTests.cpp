#include "desktop/program/ProgramTest.h"

#include "desktop/support/Canvas.h"
#include "desktop/support/ScreenSize.h"

#include <array>
#include <cmath>
#include <fstream>
#include <string>

namespace quillon::test {
namespace {

constexpr int kLens = 200;
/// Where the lens's picture is to be looked at: away from corners and outline, and never right
/// between two pixels of the screen.
constexpr std::array<Pixel, 5> kPlaces{{{21, 30}, {171, 25}, {61, 141}, {133, 177}, {103, 97}}};

/// A pointer over a picture in which no two pixels are alike, and a lens to the right of it that is
/// too far away to be in its own picture.
class Zoom : public ProgramTest {
protected:
    Zoom()
        : Zoom({.width = 900, .height = 600}) {}
    explicit Zoom(const VirtualDesktop::Options& options)
        : ProgramTest(options) {}

    void startWith(MagnificationFactor magnification, Pixel place = {300, 300},
                   CGFloat offsetX = 150) {
        prepare([&](AppSettings& settings) {
            settings.magnificationFactor = magnification;
            settings.showZoomCrosshair = false;
            settings.zoomWindowOffsetX = offsetX;
            settings.zoomWindowOffsetY = -100;
        });
        start();
        input.moveTo(place);
        toggleZoom();
    }

    /// The top left corner of the lens when nothing holds it up.
    static Pixel lensAt(Pixel pointer) { return {pointer.x + 150, pointer.y - 100}; }

    static Rgb patternAt(Pixel place) {
        const auto color = Canvas::patternAt(place.x - kCanvas.x, place.y - kCanvas.y);
        return {static_cast<int>(color >> 16), static_cast<int>(color >> 8 & 0xFF),
                static_cast<int>(color & 0xFF)};
    }
    /// What stands at a place in the lens when the picture fills it.
    static Rgb magnified(Pixel inLens, Pixel pointer, CGFloat factor) {
        const auto source = [factor](int lens, int center) {
            return static_cast<int>(std::floor(center + (lens + 0.5 - kLens / 2.0) / factor));
        };
        return patternAt({source(inLens.x, pointer.x), source(inLens.y, pointer.y)});
    }
    bool showsMagnified(Pixel pointer, CGFloat factor) {
        const Pixel lens = lensAt(pointer);
        bool shows = true;
        for (const Pixel place : kPlaces) {
            const Rgb expected = magnified(place, pointer, factor);
            const bool isThere = screen.waitForPixel({lens.x + place.x, lens.y + place.y},
                                                     [&](Rgb seen) { return seen == expected; });
            EXPECT_TRUE(isThere) << place.x << ", " << place.y << ": " << expected << " expected, "
                                 << screen.pixel({lens.x + place.x, lens.y + place.y});
            shows = shows && isThere;
        }
        return shows;
    }

    bool prints(std::string_view text, std::size_t from = 0) {
        return program->process().standardOutput().find(text, from) != std::string::npos;
    }

    int sharedSegments() {
        std::ifstream maps("/proc/" + std::to_string(program->process().pid()) + "/maps");
        int count = 0;
        for (std::string line; std::getline(maps, line);) {
            count += line.find("SYSV") != std::string::npos ? 1 : 0;
        }
        return count;
    }

    static constexpr Pixel kCanvas{180, 180};
    Canvas canvas{desktop.display(), {kCanvas.x, kCanvas.y, 256, 256}};
};

TEST_F(Zoom, each_factor_shows_the_screen_under_the_pointer_pixel_for_pixel) {
    canvas.fillWithPattern();
    for (const MagnificationFactor magnification : allCases<MagnificationFactor>()) {
        startWith(magnification);
        EXPECT_TRUE(showsMagnified({300, 300}, factor(magnification)))
            << displayName(magnification);
        stop();
    }
}

TEST_F(Zoom, the_lens_follows_the_pointer_with_its_picture) {
    canvas.fillWithPattern();
    startWith(MagnificationFactor::x4);
    ASSERT_TRUE(showsMagnified({300, 300}, 4));
    for (int step = 1; step <= 20; ++step) {
        input.moveTo({300 + step, 300 - step});
    }
    EXPECT_TRUE(showsMagnified({320, 280}, 4));
    // Nothing is left where it stood.
    EXPECT_TRUE(
        screen.waitForColor({lensAt({300, 300}).x + 5, lensAt({300, 300}).y + 195}, kBackground));
}

TEST_F(Zoom, what_changes_on_the_screen_changes_in_the_lens) {
    canvas.fill({0, 0, 256, 256}, 0x2060A0);
    startWith(MagnificationFactor::x2);
    const Pixel middle{lensAt({300, 300}).x + 103, lensAt({300, 300}).y + 97};
    for (const std::uint32_t color : {0xC08020U, 0x208020U, 0x2060A0U}) {
        canvas.fill({100, 100, 40, 40}, color);
        const Rgb expected{static_cast<int>(color >> 16), static_cast<int>(color >> 8 & 0xFF),
                           static_cast<int>(color & 0xFF)};
        EXPECT_TRUE(screen.waitForPixel(middle, [&](Rgb seen) { return seen == expected; }));
    }
}

TEST_F(Zoom, at_each_edge_of_the_screen_the_picture_is_smaller_whole_and_on_black) {
    struct Edge {
        const char* name;
        Pixel pointer;
        CGFloat offsetX;
        /// What of the screen is in the picture.
        Canvas::Frame shown;
        Pixel lens;
        /// Into the lens, from the edge of the screen towards its middle.
        Pixel inward;
    };
    const Rgb color{0x20, 0xA0, 0x60};
    const Edge edges[] = {
        {"left", {10, 300}, 150, {0, 250, 60, 100}, {160, 200}, {1, 0}},
        {"right", {890, 300}, -350, {840, 250, 60, 100}, {540, 200}, {1, 0}},
        {"top", {300, 10}, 150, {250, 0, 100, 60}, {450, 0}, {0, 1}},
        {"bottom", {300, 590}, 150, {250, 540, 100, 60}, {450, 400}, {0, 1}},
    };
    for (const Edge& edge : edges) {
        SCOPED_TRACE(edge.name);
        Canvas shown(desktop.display(), edge.shown);
        shown.fill({0, 0, edge.shown.width, edge.shown.height}, 0x20A060);
        startWith(MagnificationFactor::x2, edge.pointer, edge.offsetX);
        // Of 100 pixels 60 are on the screen; they stand in the middle, twice as large.
        const auto place = [&](int along) {
            return Pixel{edge.lens.x + (edge.inward.x == 1 ? along : 90),
                         edge.lens.y + (edge.inward.y == 1 ? along : 90)};
        };
        for (const int along : {41, 90, 158}) {
            EXPECT_TRUE(screen.waitForColor(place(along), color)) << along;
        }
        for (const int along : {3, 38, 161, 196}) {
            EXPECT_TRUE(screen.waitForColor(place(along), {0, 0, 0})) << along;
        }
        stop();
    }
}

TEST_F(Zoom, the_corners_are_black_and_the_outline_is_faint) {
    startWith(MagnificationFactor::x2);
    const Pixel lens = lensAt({300, 300});
    ASSERT_TRUE(screen.waitForColor({lens.x + 10, lens.y + 10}, {0, 0, 0}));
    for (const Pixel corner : {Pixel{1, 1}, {198, 1}, {1, 198}, {198, 198}}) {
        EXPECT_TRUE(screen.waitForColor({lens.x + corner.x, lens.y + corner.y}, {0, 0, 0}));
    }
}

TEST_F(Zoom, clicks_go_through_the_lens_and_the_keyboard_stays) {
    below.activate();
    ASSERT_TRUE(eventually([this] { return below.hasKeyboard(); }));
    canvas.fillWithPattern();
    startWith(MagnificationFactor::x2);
    ASSERT_TRUE(showsMagnified({300, 300}, 2));
    EXPECT_TRUE(below.hasKeyboard());
    // Within the lens where it stands when the button goes down.
    input.click({600, 350});
    EXPECT_TRUE(eventually([this] { return below.pressCount() == 1; }));
}

TEST_F(Zoom, switched_off_the_lens_is_gone_and_its_memory_is_given_back) {
    canvas.fillWithPattern();
    startWith(MagnificationFactor::x2);
    ASSERT_TRUE(showsMagnified({300, 300}, 2));
    EXPECT_GT(sharedSegments(), 0);
    toggleZoom();
    const Pixel lens = lensAt({300, 300});
    EXPECT_TRUE(screen.waitForColor({lens.x + 100, lens.y + 100}, kBackground));
    EXPECT_TRUE(eventually([this] { return sharedSegments() == 0; }));
}

TEST_F(Zoom, pressed_many_times_in_a_row_it_ends_in_the_right_state) {
    canvas.fillWithPattern();
    startWith(MagnificationFactor::x2);
    for (int count = 0; count < 10; ++count) {
        toggleZoom();
    }
    EXPECT_TRUE(showsMagnified({300, 300}, 2));
    for (int count = 0; count < 9; ++count) {
        toggleZoom();
    }
    const Pixel lens = lensAt({300, 300});
    EXPECT_TRUE(screen.waitForColor({lens.x + 100, lens.y + 100}, kBackground));
    EXPECT_TRUE(eventually([this] { return sharedSegments() == 0; }));
}

TEST_F(Zoom, the_spotlight_is_seen_in_the_lens) {
    canvas.fillWithPattern();
    prepare([](AppSettings& settings) {
        settings.spotlightRadius = 20;
        settings.spotlightIntensity = 1;
    });
    startWith(MagnificationFactor::x2);
    ASSERT_TRUE(showsMagnified({300, 300}, 2));
    toggleSpotlight();
    // The lens came first, so the dark lies over it.
    const auto middleOfLens = [](Pixel pointer) {
        return Pixel{lensAt(pointer).x + 103, lensAt(pointer).y + 97};
    };
    ASSERT_TRUE(screen.waitForColor(middleOfLens({300, 300}), {0, 0, 0}));
    // It is brought to the front again.
    toggleZoom();
    toggleZoom();
    const auto showsCircleAt = [&](Pixel pointer) {
        return screen.waitForPixel(middleOfLens(pointer), [&](Rgb seen) {
            return seen == magnified({103, 97}, pointer, 2);
        });
    };
    // A move that is heard of before the switch would leave the lens where it was.
    ASSERT_TRUE(showsCircleAt({300, 300}));
    input.moveTo({301, 300});
    EXPECT_TRUE(showsCircleAt({301, 300}));
    const Pixel lens = lensAt({301, 300});
    EXPECT_TRUE(screen.waitForColor({lens.x + 20, lens.y + 100}, {0, 0, 0}));
}

TEST_F(Zoom, a_screen_of_another_size_keeps_the_lens_going) {
    startWith(MagnificationFactor::x4);
    canvas.fillWithPattern();
    ASSERT_TRUE(showsMagnified({300, 300}, 4));
    changeScreenSize(desktop.connection(), 800, 600);
    input.moveTo({310, 310});
    EXPECT_TRUE(showsMagnified({310, 310}, 4));
}

TEST_F(Zoom, a_display_that_goes_ends_the_stream_and_the_lens_comes_back_when_switched_on_again) {
    startWith(MagnificationFactor::x4);
    canvas.fillWithPattern();
    ASSERT_TRUE(showsMagnified({300, 300}, 4));
    switchScreenOff(desktop.connection());
    EXPECT_TRUE(eventually([this] {
        return prints("SCStream stopped with error: ") &&
               prints("Attempting to restart screen capture...\n") &&
               prints("Available displays: 0\n");
    })) << program->process().standardOutput();
    const std::size_t before = program->process().standardOutput().size();
    changeScreenSize(desktop.connection(), 900, 600);
    // Not before the program has heard of the display.
    ASSERT_TRUE(eventually([&] {
        toggleZoom();
        toggleZoom();
        return eventually([&] { return prints("Available displays: 1\n", before); },
                          std::chrono::milliseconds(500));
    }));
    input.moveTo({310, 310});
    EXPECT_TRUE(showsMagnified({310, 310}, 4));
}

/// Where the hardware shows the pointer, its motion changes nothing on the screen.
struct ZoomBelowHardwareCursor : Zoom {
    ZoomBelowHardwareCursor()
        : Zoom({.width = 900, .height = 600, .hasCursor = false}) {}
};

TEST_F(ZoomBelowHardwareCursor,
       pinned_to_the_edge_of_the_screen_the_picture_still_follows_the_pointer) {
    canvas.fillWithPattern();
    startWith(MagnificationFactor::x4, {300, 300}, 2000);
    const Pixel lens{900 - kLens, 200};
    const Pixel place{lens.x + 20, lens.y + 30};
    for (int x = 300; x < 330; x += 7) {
        // Along the edge the lens has nowhere to go.
        input.moveTo({x, 300});
        const Rgb expected = magnified({20, 30}, {x, 300}, 4);
        const auto isThere = [&](Rgb seen) { return seen == expected; };
        ASSERT_TRUE(screen.waitForPixel(place, isThere)) << x;
        // The lens has changed the screen by showing this; that comes to rest before the next step.
        ASSERT_TRUE(
            stays([&] { return isThere(screen.pixel(place)); }, std::chrono::milliseconds(200)));
    }
}

struct ZoomWithoutCompositor : Zoom {
    ZoomWithoutCompositor()
        : Zoom({.width = 900, .height = 600, .hasCompositor = false}) {}
};

TEST_F(ZoomWithoutCompositor, the_lens_shows_the_same_picture) {
    canvas.fillWithPattern();
    startWith(MagnificationFactor::x4);
    ASSERT_TRUE(showsMagnified({300, 300}, 4));
    input.moveTo({310, 290});
    EXPECT_TRUE(showsMagnified({310, 290}, 4));
}

} // namespace
} // namespace quillon::test
