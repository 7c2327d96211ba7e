// How long a motion of the pen takes to the screen, for this program and others, side by side.
//
//     pen-latency [--rounds 5] [--strokes 5] [--width 1920] [--height 1080] [--rows]

#include "benchmarks/ChosenScreen.h"
#include "benchmarks/Peers.h"
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
#include <optional>
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

/// What came of one program in one round.
struct Found {
    double middle = 0;
    double worst = 0;
    double missed = 0;
};

/// Of one program; nothing for a round in which it failed.
using Rounds = std::vector<std::optional<Found>>;

Found measured(const PenProgram& program, int strokes,
               const test::VirtualDesktop::Options& screen) {
    test::VirtualDesktop desktop(screen);
    const auto paper = layPaper(desktop);
    const auto pen = program.start(desktop);
    pen->switchOn();
    waitForPaper(desktop);
    PenMeter meter(desktop);
    meter.measurePage(*pen, 1);
    const PenResult result = meter.measurePage(*pen, strokes);
    return {result.latency.percentile(50), result.latency.percentile(99),
            static_cast<double>(result.missed)};
}

/// Each round starts every program once, so that what befalls the machine befalls them all.
std::vector<Rounds> measure(const std::vector<PenProgram>& programs, int rounds, int strokes,
                            const test::VirtualDesktop::Options& screen) {
    std::vector<Rounds> all(programs.size());
    for (int round = 1; round <= rounds; ++round) {
        for (std::size_t index = 0; index < programs.size(); ++index) {
            const PenProgram& program = programs[index];
            auto& found = all[index].emplace_back();
            const auto take = [&] { found = measured(program, strokes, screen); };
            if (program.role == PenProgram::Role::peer) {
                measurePeer(program.name, {subjectOn("pen", screen), round}, take);
            } else {
                take();
            }
        }
    }
    return all;
}

std::vector<double> timesOf(const Rounds& rounds, double Found::*time) {
    std::vector<double> times;
    for (const auto& found : rounds) {
        if (found) {
            times.push_back((*found).*time);
        }
    }
    return times;
}

/// Of the rounds in which both were measured.
std::vector<double> ratiosOf(const Rounds& rounds, const Rounds& base, double Found::*time) {
    std::vector<double> ratios;
    for (std::size_t round = 0; round < rounds.size(); ++round) {
        if (rounds[round] && base[round]) {
            ratios.push_back((*rounds[round]).*time / (*base[round]).*time);
        }
    }
    return ratios;
}

/// The floor stands first, and the program of this project right after it.
void print(Report& report, const std::string& subject, const std::vector<PenProgram>& programs,
           const std::vector<Rounds>& all) {
    const Rounds& floor = all.at(0);
    const Rounds& ours = all.at(1);
    for (std::size_t index = 0; index < programs.size(); ++index) {
        const Rounds& rounds = all[index];
        const std::string& name = programs[index].name;
        const auto role = programs[index].role;
        if (timesOf(rounds, &Found::middle).empty()) {
            continue;
        }
        const auto addTime = [&](const std::string& percentile, double Found::*time) {
            const std::string figure = name + ": motion → pixel, " + percentile;
            report.add({subject, figure, "ms", timesOf(rounds, time)});
            if (role == PenProgram::Role::own) {
                report.add({subject, figure + " ÷ bare pen", "×", ratiosOf(rounds, floor, time),
                            atMost(kAboveFloor)});
            } else if (role == PenProgram::Role::peer) {
                report.add({subject, figure + " ÷ quillon-mark", "×", ratiosOf(rounds, ours, time),
                            atLeast(kAheadOfPeers)});
            }
        };
        addTime("p50", &Found::middle);
        addTime("p99", &Found::worst);
        const auto missed = timesOf(rounds, &Found::missed);
        if (std::ranges::any_of(missed, [](double count) { return count > 0; })) {
            report.add({subject, name + ": motions without a picture", "", missed});
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
