// How long it takes from a motion of the pointer, with the button held, to the change of a pixel
// on the root window, where a person would see it. The programs take turns in one run on one
// desktop of their own; a Markdown table is printed.

#include "Statistics.h"
#include "desktop/support/InputDriver.h"
#include "desktop/support/Program.h"
#include "desktop/support/ScreenReader.h"
#include "desktop/support/StoredSettings.h"
#include "desktop/support/VirtualDesktop.h"

#include <sys/stat.h>

#include <chrono>
#include <cstdio>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <vector>

using namespace quillon;
using namespace quillon::test;
using namespace quillon::bench;

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kRounds = 5;
constexpr int kMotionsInStroke = 60;
constexpr int kStrokesInRound = 4;
/// The pointer moves so far that the place looked at lies outside of what was painted before.
constexpr int kStep = 14;
constexpr std::chrono::milliseconds kLongest{200};

double millisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

struct Stand {
    VirtualDesktop& desktop;
    InputDriver& input;
    ScreenReader& screen;
};

/// Draws strokes from left to right and times each motion to the first sight of its ink. The ink is
/// looked for a little behind the pointer, where every pen has drawn by then.
std::vector<double> timeStrokes(Stand& stand, int firstRow, int strokes) {
    std::vector<double> samples;
    for (int row = firstRow; row < firstRow + strokes; ++row) {
        const int y = 120 + row * 60;
        Pixel place{100, y};
        stand.input.moveTo(place);
        stand.input.press();
        for (int motion = 0; motion < kMotionsInStroke; ++motion) {
            place = {place.x + kStep, y};
            const Pixel seen{place.x - 4, y};
            const Rgb before = stand.screen.pixel(seen);
            const auto start = Clock::now();
            stand.input.moveTo(place);
            while (stand.screen.pixel(seen) == before && Clock::now() - start < kLongest) {
            }
            // The first motions of a stroke only begin it.
            if (motion >= 3) {
                samples.push_back(millisecondsSince(start));
            }
        }
        stand.input.release();
    }
    return samples;
}

struct Contestant {
    std::string name;
    /// Starts the program with its pen ready; the result ends it.
    std::function<std::shared_ptr<void>(Stand&)> start;
};

bool exists(const std::string& file) {
    struct stat status {};
    return stat(file.c_str(), &status) == 0;
}

bool pointerMeetsWindow(Stand& stand) {
    auto& connection = stand.desktop.connection();
    const XOwned<xcb_query_pointer_reply_t> pointer(xcb_query_pointer_reply(
        connection.get(), xcb_query_pointer(connection.get(), connection.root()), nullptr));
    return pointer && pointer->child != XCB_NONE;
}

std::shared_ptr<void> startOther(Stand& stand, const std::vector<std::string>& command) {
    auto process = std::make_shared<ChildProcess>(command, stand.desktop.environment());
    eventually([&] { return pointerMeetsWindow(stand); });
    return process;
}

std::shared_ptr<void> startProgram(Stand& stand) {
    withStoredSettings(stand.desktop.configFolder(), [](AppSettings& settings) {
        settings.isAnnotationEnabled = true;
        settings.selectedColor = Color(1, 0, 0);
        settings.lineWidth = 8.0;
    });
    auto program = std::make_shared<Program>(stand.desktop);
    eventually([&] { return pointerMeetsWindow(stand); });
    return program;
}

} // namespace

int main(int argc, char** argv) {
    const bool isWide = argc > 1 && std::string(argv[1]) == "--4k";
    VirtualDesktop desktop(isWide ? VirtualDesktop::Options{.width = 3840, .height = 2160}
                                  : VirtualDesktop::Options{});
    InputDriver input(desktop.connection());
    ScreenReader screen(desktop.connection());
    Stand stand{desktop, input, screen};

    std::vector<Contestant> contestants{
        {"bare xcb", [](Stand& s) { return startOther(s, {BARE_PEN_PATH}); }},
        {"quillon-mark", startProgram},
    };
    if (exists("/usr/bin/gromit-mpx")) {
        contestants.push_back({"gromit-mpx", [](Stand& s) {
                                   return startOther(s, {"gromit-mpx", "-a"});
                               }});
    } else {
        std::cerr << "gromit-mpx is not installed and is left out\n";
    }

    std::map<std::string, std::vector<double>> samples;
    for (int round = 0; round < kRounds; ++round) {
        for (const auto& contestant : contestants) {
            const auto running = contestant.start(stand);
            timeStrokes(stand, 0, 1);
            const auto times = timeStrokes(stand, 1, kStrokesInRound);
            auto& all = samples[contestant.name];
            all.insert(all.end(), times.begin(), times.end());
        }
    }

    const auto& floor = samples["bare xcb"];
    std::printf("| program | motions | p50 ms | p99 ms | p50 / bare | p99 / bare |\n");
    std::printf("|---|---|---|---|---|---|\n");
    for (const auto& contestant : contestants) {
        const auto& times = samples[contestant.name];
        const double middle = percentile(times, 0.5);
        const double slow = percentile(times, 0.99);
        std::printf("| %s | %zu | %.3f | %.3f | %.2f | %.2f |\n", contestant.name.c_str(),
                    times.size(), middle, slow, middle / percentile(floor, 0.5),
                    slow / percentile(floor, 0.99));
    }
    return 0;
}
