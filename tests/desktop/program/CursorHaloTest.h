#pragma once

#include "desktop/program/ProgramTest.h"

#include <utility>
#include <vector>

namespace quillon::test {

/// The built-in look of the halo: a cyan ring of 34 points, 3 thick.
inline constexpr Rgb kHalo{50, 173, 230};
inline constexpr int kRadius = 17;

inline bool isHalo(Rgb seen) {
    return isNear(seen, kHalo, 30);
}

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
    bool haloComesTo(Pixel place, int radius = kRadius) {
        return eventually([&] {
            input.moveTo({place.x + 1, place.y});
            input.moveTo(place);
            return eventually([&] { return showsRing(place, radius); },
                              std::chrono::milliseconds(100));
        });
    }
    /// Whether a ring of that radius, in device pixels, stands round `place` now, which is the
    /// upper left corner of a pixel.
    bool showsRing(Pixel place, int radius) {
        return isHalo(screen.pixel({place.x + radius - 1, place.y})) &&
               isHalo(screen.pixel({place.x - radius, place.y})) &&
               isHalo(screen.pixel({place.x, place.y + radius - 1})) &&
               isHalo(screen.pixel({place.x, place.y - radius})) &&
               screen.pixel(place) == kBackground;
    }
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

    bool isAnimated() { return !squareWindows(120).empty(); }
    /// Clicks in the overlay until an animation plays.
    bool clickPlays(int button = 3) {
        return eventually([&] {
            input.click({500, 300}, button);
            return eventually([this] { return isAnimated(); }, std::chrono::milliseconds(300));
        });
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

} // namespace quillon::test
