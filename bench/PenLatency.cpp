// How long a motion of the pen takes to the screen, for this program and others, side by side.
//
//     pen-latency [--rounds 5] [--strokes 5] [--width 1920] [--height 1080]

#include "bench/PenMeter.h"
#include "bench/Pens.h"
#include "bench/Statistics.h"

#include "desktop/support/ProbeWindow.h"
#include "desktop/support/ScreenReader.h"

#include <sys/prctl.h>

#include <exception>
#include <iostream>
#include <stdexcept>

using namespace quillon;
using namespace quillon::bench;

namespace {

constexpr test::Rgb kPaper{240, 240, 235};

/// Waits until nothing but the paper stands on the screen, and has for a while: a compositor takes
/// its time with a window that covers everything.
void waitForPaper(test::VirtualDesktop& desktop) {
    const test::ScreenReader screen(desktop.connection());
    const test::Pixel middle{desktop.connection().screen().width_in_pixels / 2,
                             desktop.connection().screen().height_in_pixels / 2};
    const auto isBlank = [&] { return test::isNear(screen.pixel(middle), kPaper, 0); };
    if (!test::eventually([&] { return test::stays(isBlank, std::chrono::milliseconds(400)); })) {
        throw std::runtime_error("the screen does not come to rest");
    }
}

/// A window of another program below the drawing, as wide as the screen.
std::unique_ptr<test::ProbeWindow> layPaper(test::VirtualDesktop& desktop) {
    const auto& screen = desktop.connection().screen();
    const test::ProbeWindow::Geometry everywhere{0, 0, screen.width_in_pixels,
                                                 screen.height_in_pixels};
    return std::make_unique<test::ProbeWindow>(desktop.display(), everywhere, kPaper);
}

/// Each round starts every program once, so that what befalls the machine befalls them all.
std::vector<PenResult> measure(const std::vector<PenProgram>& programs, int rounds, int strokes,
                               const test::VirtualDesktop::Options& screen) {
    std::vector<PenResult> results(programs.size());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t index = 0; index < programs.size(); ++index) {
            test::VirtualDesktop desktop(screen);
            const auto paper = layPaper(desktop);
            std::cerr << "round " << round + 1 << ": " << programs[index].name << std::endl;
            const auto pen = programs[index].start(desktop);
            pen->switchOn();
            waitForPaper(desktop);
            PenMeter meter(desktop);
            meter.measurePage(*pen, 1);
            const PenResult result = meter.measurePage(*pen, strokes);
            results[index].latency.add(result.latency);
            results[index].missed += result.missed;
        }
    }
    return results;
}

void print(const std::vector<PenProgram>& programs, const std::vector<PenResult>& results) {
    const double floorMiddle = results.front().latency.percentile(50);
    const double floorWorst = results.front().latency.percentile(99);
    std::cout << head(
        {"motion → pixel", "motions", "missed", "p50 ms", "p99 ms", "p50 ÷ bare", "p99 ÷ bare"});
    for (std::size_t index = 0; index < programs.size(); ++index) {
        const PenResult& result = results[index];
        const double middle = result.latency.percentile(50);
        const double worst = result.latency.percentile(99);
        std::cout << row({programs[index].name, std::to_string(result.latency.count()),
                          std::to_string(result.missed), fixed(middle, 2), fixed(worst, 2),
                          fixed(middle / floorMiddle, 2), fixed(worst / floorWorst, 2)});
    }
}

} // namespace

int main(int count, char** arguments) {
    try {
        const std::vector<std::string> options(arguments + 1, arguments + count);
        // Pauses of microseconds are kept as such.
        prctl(PR_SET_TIMERSLACK, 1);
        auto programs = penPrograms();
        programs.push_back(penWithoutPalette());
        test::VirtualDesktop::Options screen;
        screen.width = option(options, "--width", screen.width);
        screen.height = option(options, "--height", screen.height);
        print(programs, measure(programs, option(options, "--rounds", 5),
                                option(options, "--strokes", 5), screen));
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "pen-latency: " << error.what() << '\n';
        return 1;
    }
}
