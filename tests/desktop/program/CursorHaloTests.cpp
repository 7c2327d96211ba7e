#include "desktop/program/CursorHaloTest.h"
#include "desktop/support/WakeUps.h"

#include <string>

namespace quillon::test {
namespace {

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
    EXPECT_FALSE(isAnimated());
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

TEST_F(CursorHalo, a_burst_is_followed_in_fewer_steps_and_ends_at_the_newest_place) {
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
    EXPECT_LT(count, 5 * 600);
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

} // namespace
} // namespace quillon::test
