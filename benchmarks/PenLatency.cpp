// How long a motion of the pen takes to the screen, for this program and others, side by side.
//
//     pen-latency [--rounds 5] [--strokes 5] [--width 1920] [--height 1080] [--rows]

#include "benchmarks/ChosenScreen.h"
#include "benchmarks/PenMeter.h"
#include "benchmarks/Pens.h"
#include "benchmarks/Report.h"
#include "benchmarks/Statistics.h"

#include "desktop/support/ProbeWindow.h"
#include "desktop/support/ScreenReader.h"

#include <sys/prctl.h>

#include <algorithm>
#include <exception>
#include <iostream>
#include <stdexcept>

using namespace quillon;
using namespace quillon::bench;

namespace {

constexpr test::Rgb kPaper{240, 240, 235};
/// How much slower than the bare pen this program may be, and how much sooner than others it is.
constexpr double kAboveFloor = 1.25;
constexpr double kAheadOfPeers = 8;

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

/// What came of one program in each round.
struct Findings {
    std::vector<double> middles;
    std::vector<double> worsts;
    std::vector<double> missed;
};

/// Each round starts every program once, so that what befalls the machine befalls them all.
std::vector<Findings> measure(const std::vector<PenProgram>& programs, int rounds, int strokes,
                              const test::VirtualDesktop::Options& screen) {
    std::vector<Findings> findings(programs.size());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t index = 0; index < programs.size(); ++index) {
            test::VirtualDesktop desktop(screen);
            const auto paper = layPaper(desktop);
            const auto pen = programs[index].start(desktop);
            pen->switchOn();
            waitForPaper(desktop);
            PenMeter meter(desktop);
            meter.measurePage(*pen, 1);
            const PenResult result = meter.measurePage(*pen, strokes);
            findings[index].middles.push_back(result.latency.percentile(50));
            findings[index].worsts.push_back(result.latency.percentile(99));
            findings[index].missed.push_back(result.missed);
        }
    }
    return findings;
}

/// The floor stands first, and the program of this project right after it.
void print(Report& report, const std::string& subject, const std::vector<PenProgram>& programs,
           const std::vector<Findings>& all) {
    const Findings& floor = all.at(0);
    const Findings& ours = all.at(1);
    for (std::size_t index = 0; index < programs.size(); ++index) {
        const Findings& found = all[index];
        const std::string& name = programs[index].name;
        const auto role = programs[index].role;
        const auto addTime = [&](const std::string& percentile, auto times) {
            const std::string figure = name + ": motion → pixel, " + percentile;
            report.add({subject, figure, "ms", found.*times});
            if (role == PenProgram::Role::own) {
                report.add({subject, figure + " ÷ bare pen", "×",
                            ratios(found.*times, floor.*times), atMost(kAboveFloor)});
            } else if (role == PenProgram::Role::peer) {
                report.add({subject, figure + " ÷ quillon-mark", "×",
                            ratios(found.*times, ours.*times), atLeast(kAheadOfPeers)});
            }
        };
        addTime("p50", &Findings::middles);
        addTime("p99", &Findings::worsts);
        if (std::ranges::any_of(found.missed, [](double missed) { return missed > 0; })) {
            report.add({subject, name + ": motions without a picture", "", found.missed});
        }
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
        const auto screen = screenOf(options);
        Report report(options);
        print(report, subjectOn("pen", screen), programs,
              measure(programs, option(options, "--rounds", 5), option(options, "--strokes", 5),
                      screen));
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "pen-latency: " << error.what() << '\n';
        return 1;
    }
}
