// How soon the lens shows a change of the screen, how many frames of a film it shows, and what that
// costs.
//
//     lens-frames [--rounds 3] [--changes 40] [--seconds 5] [--width 1920] [--height 1080] [--rows]
//
// Where xzoom and magnus are installed they show the same film, as fast as they can be told to.
// magnus looks at the screen only when the pointer has moved; so the pointer moves with each frame
// of the film, and the lens shows that film as well.

#include "benchmarks/ChosenScreen.h"
#include "benchmarks/FilmScene.h"
#include "benchmarks/Peers.h"
#include "benchmarks/Report.h"
#include "benchmarks/Statistics.h"

#include <sys/prctl.h>

#include <exception>
#include <iostream>
#include <optional>
#include <stdexcept>

using namespace quillon;
using namespace quillon::bench;

namespace {

using Pointer = FilmScene::Pointer;
using Rounds = std::vector<double>;

/// Milliseconds: a frame.
constexpr double kLatest = 17;
/// Of sixty: a frame at the edge of the measured time can fall outside of it.
constexpr double kFewestFrames = 59;
constexpr double kHighestLoad = 25;
constexpr int kSecondsOfRest = 5;

struct Findings {
    std::string name;
    Rounds middles = {};
    Rounds latest = {};
    Rounds played = {};
    Rounds shown = {};
    Rounds load = {};
    Rounds cost = {};
    Rounds wakeUps = {};
    /// What the lens needs for a frame beside it.
    Rounds costOfLens = {};

    void add(const Samples& times) {
        middles.push_back(times.percentile(50));
        latest.push_back(times.percentile(99));
    }
    void add(const FilmScene::Film& film) {
        played.push_back(film.played);
        shown.push_back(film.shown);
        load.push_back(film.load);
        cost.push_back(film.cost());
    }
};

/// Of programs that are not installed or fail nothing is found.
struct Everything {
    Findings lens{"lens"};
    Findings xzoom{"xzoom"};
    Findings lensInMotion{"lens, pointer in motion"};
    Findings magnus{"magnus, pointer in motion"};
};

struct Amounts {
    int changes = 0;
    int seconds = 0;
};

/// Adds what a film came to in a magnifier, beside the same film in the lens.
void addBeside(const FilmScene::Film& inLens, Findings& found, const FilmScene::Film& film) {
    if (film.shown == 0) {
        throw std::runtime_error(found.name + " showed no frame of the film");
    }
    found.add(film);
    found.costOfLens.push_back(inLens.cost() / film.cost());
}

void addRound(Everything& all, const Round& round, const test::VirtualDesktop::Options& screen,
              Amounts amounts) {
    FilmScene::Film atRest;
    FilmScene::Film inMotion;
    {
        FilmScene scene(screen, {"lens"});
        all.lens.add(scene.timeChanges(amounts.changes));
        atRest = scene.playFilm(amounts.seconds, Pointer::atRest);
        all.lens.wakeUps.push_back(static_cast<double>(scene.wakeUpsAtRest(kSecondsOfRest)));
        inMotion = scene.playFilm(amounts.seconds, Pointer::moving);
    }
    all.lens.add(atRest);
    all.lensInMotion.add(inMotion);
    measurePeer("xzoom", round, [&] {
        // Each d halves the pause between two looks, from 200 milliseconds to none.
        FilmScene scene(screen, {.name = "xzoom",
                                 .command = {"xzoom", "-mag", "2", "-source", "100x100+450+450"},
                                 .keys = {"d", "d", "d", "d"}});
        const Samples times = scene.timeChanges(amounts.changes);
        addBeside(atRest, all.xzoom, scene.playFilm(amounts.seconds, Pointer::atRest));
        all.xzoom.add(times);
    });
    measurePeer("magnus", round, [&] {
        FilmScene scene(screen, {.name = "magnus", .command = {"magnus", "--refresh-interval=8"}});
        addBeside(inMotion, all.magnus, scene.playFilm(amounts.seconds, Pointer::moving));
    });
}

/// Figures for which there is a target have it for the lens.
void print(Report& report, const std::string& subject, const Findings& found, bool isLens) {
    const auto add = [&](const std::string& figure, const std::string& unit, const Rounds& rounds,
                         Target target) {
        if (!rounds.empty()) {
            report.add({subject, found.name + ": " + figure, unit, rounds,
                        isLens ? std::optional(target) : std::nullopt});
        }
    };
    add("change → picture, p50", "ms", found.middles, atMost(kLatest));
    if (!found.latest.empty()) {
        report.add({subject, found.name + ": change → picture, p99", "ms", found.latest});
    }
    if (!found.played.empty()) {
        report.add(
            {subject, found.name + ": frames a second of 60 on the screen", "", found.played});
    }
    add("frames a second of 60 in the magnifier", "", found.shown, atLeast(kFewestFrames));
    add("load", "% of a core", found.load, atMost(kHighestLoad));
    if (!found.cost.empty()) {
        report.add({subject, found.name + ": of a core for a frame", "ms", found.cost});
    }
    add("wake-ups in 5 s at rest", "", found.wakeUps, atMost(0));
}

/// What the lens needs for a frame beside another.
void compare(Report& report, const std::string& subject, const Findings& lens,
             const Findings& other) {
    if (!other.costOfLens.empty()) {
        report.add({subject, lens.name + ": of a core for a frame ÷ " + other.name, "×",
                    other.costOfLens, atMost(1)});
    }
}

} // namespace

int main(int count, char** arguments) {
    try {
        const std::vector<std::string> options(arguments + 1, arguments + count);
        // Pauses of microseconds are kept as such.
        prctl(PR_SET_TIMERSLACK, 1);
        const int rounds = option(options, "--rounds", 3);
        const Amounts amounts{option(options, "--changes", 40), option(options, "--seconds", 5)};
        const auto screen = screenOf(options);
        const std::string subject = subjectOn("lens", screen);
        Everything all;
        for (int round = 1; round <= rounds; ++round) {
            addRound(all, {subject, round}, screen, amounts);
        }
        Report report(options);
        print(report, subject, all.lens, true);
        print(report, subject, all.lensInMotion, true);
        print(report, subject, all.xzoom, false);
        print(report, subject, all.magnus, false);
        compare(report, subject, all.lens, all.xzoom);
        compare(report, subject, all.lensInMotion, all.magnus);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "lens-frames: " << error.what() << '\n';
        return 1;
    }
}
