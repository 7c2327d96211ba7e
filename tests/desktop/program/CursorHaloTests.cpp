#include "desktop/program/ProgramTest.h"
#include "desktop/support/DesktopScale.h"
#include "desktop/support/ScreenSize.h"
#include "desktop/support/WakeUps.h"

#include <string>
#include <utility>
#include <vector>

namespace quillon::test {
namespace {

/// The built-in look of the halo: a cyan ring of 34 points, 3 thick.
constexpr Rgb kHalo{50, 173, 230};
constexpr int kRadius = 17;

bool isHalo(Rgb seen) {
    return isNear(seen, kHalo, 30);
}

/// Counts how often a window is placed or stacked.
class Placements {
public:
    Placements(const std::string& display, xcb_window_t window)
        : m_connection(display) {
        const std::uint32_t structure = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection.get(), window, XCB_CW_EVENT_MASK, &structure);
        m_connection.synchronise();
    }

    /// Since the last call.
    int count() {
        m_connection.synchronise();
        int placements = 0;
        while (const XOwned<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())}) {
            placements += (event->response_type & 0x7F) == XCB_CONFIGURE_NOTIFY ? 1 : 0;
        }
        return placements;
    }

private:
    XConnection m_connection;
};

class CursorHalo : public ProgramTest {
protected:
    CursorHalo() = default;
    using ProgramTest::ProgramTest;

    /// Starts the program, switches the halo on and brings it to `place`.
    void startWithHaloAt(Pixel place) {
        start();
        toggleHalo();
        ASSERT_TRUE(haloComesTo(place));
    }
    /// Moves the pointer about until the halo follows, and to `place` at last.
    bool haloComesTo(Pixel place) {
        return eventually([&] {
            input.moveTo({place.x + 1, place.y});
            input.moveTo(place);
            return hasRing(place, std::chrono::milliseconds(100));
        });
    }
    bool showsRing(Pixel place, int radius) {
        return isHalo(screen.pixel({place.x + radius - 1, place.y})) &&
               isHalo(screen.pixel({place.x - radius, place.y})) &&
               isHalo(screen.pixel({place.x, place.y + radius - 1})) &&
               isHalo(screen.pixel({place.x, place.y - radius})) &&
               screen.pixel(place) == kBackground;
    }
    /// Whether the ring stands round `place`, which is the upper left corner of a pixel.
    bool hasRing(Pixel place, std::chrono::milliseconds bound = defaultBound) {
        return eventually([&] { return showsRing(place, kRadius); }, bound);
    }
    bool hasNoRing(Pixel place) {
        return screen.waitForPixel({place.x + kRadius - 1, place.y},
                                   [](Rgb seen) { return seen == kBackground; });
    }
    bool keepsRing(Pixel place) {
        return stays([&] { return hasRing(place, std::chrono::milliseconds(0)); },
                     std::chrono::milliseconds(200));
    }

    /// Where a window stands on the screen.
    std::pair<int, int> cornerOf(xcb_window_t window) {
        const XOwned<xcb_get_geometry_reply_t> geometry(
            xcb_get_geometry_reply(desktop.connection().get(),
                                   xcb_get_geometry(desktop.connection().get(), window), nullptr));
        return {geometry->x, geometry->y};
    }

    /// The windows on the screen with that side.
    std::vector<xcb_window_t> squareWindows(int side) {
        std::vector<xcb_window_t> windows = desktop.connection().shownWindows();
        std::erase_if(windows, [&](auto window) {
            xcb_connection_t* connection = desktop.connection().get();
            const XOwned<xcb_get_geometry_reply_t> geometry(
                xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
            return !geometry || geometry->width != side || geometry->height != side;
        });
        return windows;
    }
};

TEST_F(CursorHalo, the_ring_is_centred_on_the_pointer_and_follows_it_without_a_trace) {
    startWithHaloAt({300, 300});
    for (const Pixel place : {Pixel{301, 300}, Pixel{450, 411}, Pixel{600, 120}}) {
        input.moveTo(place);
        EXPECT_TRUE(hasRing(place));
    }
    EXPECT_TRUE(hasNoRing({300, 300}));
    EXPECT_TRUE(hasNoRing({450, 411}));
}

TEST_F(CursorHalo, the_ring_has_a_soft_glow_that_fades_inward_and_outward) {
    startWithHaloAt({300, 300});
    // On the diagonal there is room for all of it: the stroke reaches to 18.5.
    const auto onDiagonal = [&](double distance) {
        const int along = static_cast<int>(distance * 0.7071);
        return screen.pixel({300 + along, 300 + along});
    };
    EXPECT_TRUE(isHalo(onDiagonal(17.2)));
    EXPECT_GT(onDiagonal(20).green, kBackground.green + 4);
    EXPECT_LT(onDiagonal(20).green, kHalo.green - 40);
    EXPECT_GT(onDiagonal(14).green, kBackground.green + 4);
    EXPECT_EQ(onDiagonal(4), kBackground);
    EXPECT_EQ(onDiagonal(30), kBackground);
}

TEST_F(CursorHalo, a_larger_size_keeps_the_pointer_in_the_middle) {
    prepare([](AppSettings& settings) { settings.haloSize = 81; });
    startWithHaloAt({300, 300});
    EXPECT_EQ(squareWindows(81).size(), 1U);
}

TEST_F(CursorHalo, clicks_reach_the_window_below_and_the_halo_goes_along) {
    startWithHaloAt({300, 300});
    for (const int button : {1, 2, 3}) {
        const Pixel place{300 + 50 * button, 300};
        input.click(place, button);
        EXPECT_TRUE(hasRing(place));
    }
    EXPECT_TRUE(eventually([this] { return below.pressCount() == 3; }));
    EXPECT_TRUE(squareWindows(120).empty());
}

TEST_F(CursorHalo, a_drag_holds_it_still_until_the_button_is_up) {
    startWithHaloAt({300, 300});
    input.press();
    ASSERT_TRUE(keepsRing({300, 300}));
    for (int x = 305; x <= 500; x += 5) {
        input.moveTo({x, 300});
    }
    EXPECT_TRUE(keepsRing({300, 300}));
    input.release();
    input.moveTo({502, 300});
    EXPECT_TRUE(hasRing({502, 300}));
}

TEST_F(CursorHalo, a_pointer_that_a_program_warps_is_found_at_the_next_press_or_move) {
    startWithHaloAt({300, 300});
    input.warpTo({500, 300});
    EXPECT_TRUE(keepsRing({300, 300}));
    input.press();
    input.release();
    EXPECT_TRUE(hasRing({500, 300}));
    input.warpTo({600, 200});
    input.moveTo({601, 200});
    EXPECT_TRUE(hasRing({601, 200}));
}

TEST_F(CursorHalo, a_burst_is_followed_in_a_few_steps_and_ends_at_the_newest_place) {
    startWithHaloAt({100, 300});
    Placements placements(desktop.display(), squareWindows(40).at(0));
    for (int round = 0; round < 5; ++round) {
        for (int x = 100; x <= 700; ++x) {
            input.moveTo({x, 300});
        }
        EXPECT_TRUE(hasRing({700, 300}));
    }
    const int count = placements.count();
    EXPECT_GE(count, 5);
    EXPECT_LT(count, 5 * 600 / 3);
}

TEST_F(CursorHalo, off_it_is_gone_and_the_pointer_wakes_nobody) {
    startWithHaloAt({300, 300});
    const pid_t process = program->process().pid();
    const auto movePointer = [&] {
        for (int x = 100; x < 300; ++x) {
            input.moveTo({x, 400});
        }
    };
    const long whileOn = wakeUpsOf(process);
    movePointer();
    ASSERT_TRUE(hasRing({299, 400}));
    EXPECT_GT(wakeUpsOf(process), whileOn);

    toggleHalo();
    ASSERT_TRUE(eventually([this] { return squareWindows(40).empty(); }));
    EXPECT_TRUE(hasNoRing({299, 400}));
    EXPECT_TRUE(eventually([&] {
        const long before = wakeUpsOf(process);
        movePointer();
        return stays([&] { return wakeUpsOf(process) == before; }, std::chrono::milliseconds(100));
    }));
}

TEST_F(CursorHalo, ten_quick_toggles_end_where_they_began) {
    startWithHaloAt({300, 300});
    for (int toggle = 0; toggle < 10; ++toggle) {
        toggleHalo();
    }
    ASSERT_TRUE(haloComesTo({500, 300}));
    toggleHalo();
    ASSERT_TRUE(hasNoRing({500, 300}));
    stop();
    EXPECT_FALSE(
        stored<bool>([](AppSettings& settings) -> bool { return settings.isCursorHaloEnabled; }));
}

TEST_F(CursorHalo, a_move_is_one_request_that_carries_place_and_stacking) {
    startWithHaloAt({300, 300});
    const auto windows = squareWindows(40);
    ASSERT_EQ(windows.size(), 1U);
    Placements placements(desktop.display(), windows.front());
    ProbeWindow above(desktop.display(), {400, 200, 200, 200}, {90, 60, 40});
    constexpr int kMoves = 20;
    for (int move = 1; move <= kMoves; ++move) {
        input.moveTo({300 + move * 5, 300});
        ASSERT_TRUE(screen.waitForPixel({300 + move * 5 - kRadius, 300}, isHalo));
    }
    EXPECT_EQ(placements.count(), kMoves);
}

TEST_F(CursorHalo, it_stands_above_a_film_on_the_whole_screen_and_on_every_desktop) {
    startWithHaloAt({300, 300});
    below.fillScreen();
    EXPECT_TRUE(haloComesTo({300, 20}));
    desktop.showWorkspace(1);
    input.moveTo({500, 500});
    EXPECT_TRUE(screen.waitForPixel({500 + kRadius - 1, 500}, isHalo));
}

TEST_F(CursorHalo, it_never_takes_the_keyboard) {
    below.activate();
    ASSERT_TRUE(eventually([this] { return below.hasKeyboard(); }));
    startWithHaloAt({300, 300});
    input.click({320, 300});
    EXPECT_TRUE(below.hasKeyboard());
    toggleHalo();
    ASSERT_TRUE(hasNoRing({320, 300}));
    EXPECT_TRUE(below.hasKeyboard());
}

TEST_F(CursorHalo, a_click_in_the_overlay_plays_an_animation_that_is_gone_afterwards) {
    startAnnotating();
    toggleHalo();
    // Another program's window shows when the halo is live: the overlay catches the pointer.
    for (const int button : {1, 3}) {
        ASSERT_TRUE(eventually([&] {
            input.click({500, 300}, button);
            return eventually([this] { return !squareWindows(120).empty(); },
                              std::chrono::milliseconds(300));
        }));
        EXPECT_TRUE(eventually([this] { return squareWindows(120).empty(); }));
    }
    EXPECT_EQ(below.pressCount(), 0);
}

TEST_F(CursorHalo, the_circle_of_a_click_grows_beyond_the_window_of_the_halo_whole) {
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
    EXPECT_TRUE(eventually([this] { return squareWindows(120).empty(); }));
    EXPECT_TRUE(showsBackground({538, 300}));
}

TEST_F(CursorHalo, over_the_overlay_that_catches_the_pointer_it_holds_still) {
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

TEST_F(CursorHalo, a_middle_click_in_the_overlay_plays_nothing) {
    startAnnotating();
    toggleHalo();
    ASSERT_TRUE(eventually([&] {
        input.click({500, 300}, 3);
        return eventually([this] { return !squareWindows(120).empty(); },
                          std::chrono::milliseconds(300));
    }));
    ASSERT_TRUE(eventually([this] { return squareWindows(120).empty(); }));
    input.click({500, 300}, 2);
    EXPECT_TRUE(
        stays([this] { return squareWindows(120).empty(); }, std::chrono::milliseconds(300)));
}

TEST_F(CursorHalo, a_storm_of_clicks_is_played_and_all_gone_afterwards) {
    startAnnotating();
    toggleHalo();
    ASSERT_TRUE(eventually([&] {
        input.click({500, 300}, 3);
        return eventually([this] { return !squareWindows(120).empty(); },
                          std::chrono::milliseconds(300));
    }));
    for (int click = 0; click < 100; ++click) {
        input.click({300 + click, 300}, 3);
    }
    EXPECT_TRUE(eventually([this] { return squareWindows(120).size() > 10; }));
    EXPECT_TRUE(eventually([this] { return squareWindows(120).empty(); }));
    toggleHalo();
    toggleAnnotation();
    EXPECT_TRUE(eventually([this] { return !takesPointer(); }));
}

TEST_F(CursorHalo, the_program_ends_quietly_in_the_middle_of_an_animation) {
    startAnnotating();
    toggleHalo();
    ASSERT_TRUE(eventually([&] {
        input.click({500, 300}, 3);
        return eventually([this] { return !squareWindows(120).empty(); },
                          std::chrono::milliseconds(300));
    }));
    stop();
    EXPECT_EQ(program->process().standardError(), "");
}

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
        EXPECT_TRUE(eventually([&] {
            input.moveTo({place.x - 3, place.y});
            input.moveTo(place);
            return eventually([&] { return showsRing(place, radius); },
                              std::chrono::milliseconds(100));
        })) << place.x;
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
            input.moveTo(place);
            EXPECT_TRUE(eventually([&] { return showsRing(place, radius); })) << percent;
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
        return eventually([this] { return !squareWindows(120).empty(); }) && isPointerHeld() &&
               below.pressCount() == before;
    }));
    const auto before = cornerOf(squareWindows(40).at(0));
    input.moveTo({600, 200});
    EXPECT_TRUE(stays([&] { return cornerOf(squareWindows(40).at(0)) == before; },
                      std::chrono::milliseconds(200)));
}

} // namespace
} // namespace quillon::test
