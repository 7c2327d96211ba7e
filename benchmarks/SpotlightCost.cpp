// What a move of the pointer costs while a spotlight follows it, for this program and projecteur.
//
//     spotlight-cost [--rounds 3] [--moves 500] [--width 1920] [--height 1080] [--rows]

#include "benchmarks/ChosenScreen.h"
#include "benchmarks/Peers.h"
#include "benchmarks/ProcessUsage.h"
#include "benchmarks/Projecteur.h"
#include "benchmarks/Report.h"
#include "benchmarks/ScreenPart.h"
#include "benchmarks/Statistics.h"

#include "desktop/support/InputDriver.h"
#include "desktop/support/ProbeWindow.h"
#include "desktop/support/Program.h"
#include "desktop/support/VirtualDesktop.h"

#include <exception>
#include <functional>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>

using namespace quillon;
using namespace quillon::bench;

namespace {

using Clock = std::chrono::steady_clock;

constexpr double kLessThanProjecteur = 15;
constexpr double kMilliseconds = 1000;
constexpr std::chrono::milliseconds kPause{10};
constexpr std::chrono::seconds kTimeToSettle{1};
constexpr std::chrono::seconds kPatience{4};
constexpr int kTriesOfProjecteur = 4;
constexpr int kMovesOfOneWay = 100;
constexpr test::Pixel kStep{7, 3};
constexpr test::Pixel kStart{500, 500};
/// Where the screen is dimmed as long as the pointer is at its start.
constexpr test::Pixel kFarAway{100, 100};

class Scene {
public:
    explicit Scene(const test::VirtualDesktop::Options& screen)
        : m_desktop(screen)
        , m_paper(m_desktop.display(), {0, 0, screen.width, screen.height}, {240, 240, 235}) {
        m_input.moveTo(kStart);
    }

    test::VirtualDesktop& desktop() { return m_desktop; }
    test::InputDriver& input() { return m_input; }

    /// Waits until the spotlight stands that `switchOn` brings, in one of so many tries.
    void awaitSpotlight(const std::string& name, const std::function<void()>& switchOn,
                        int tries = 1) {
        const auto before = seenFarAway();
        const auto appears = [&] {
            switchOn();
            return test::eventually([&] { return seenFarAway() != before; }, kPatience);
        };
        while (!appears()) {
            if (--tries == 0) {
                throw std::runtime_error("no spotlight of " + name + " appears");
            }
        }
        std::this_thread::sleep_for(kTimeToSettle);
    }

    /// Milliseconds of a processor for each of some moves to and fro, at the pace of a calm hand.
    double costOfMove(pid_t process, int moves) {
        const ProcessUsage before = ProcessUsage::of(process);
        const auto start = Clock::now();
        test::Pixel place = kStart;
        for (int move = 0; move < moves; ++move) {
            const int direction = move / kMovesOfOneWay % 2 == 0 ? 1 : -1;
            place = {place.x + direction * kStep.x, place.y + direction * kStep.y};
            m_input.moveTo(place);
            std::this_thread::sleep_until(start + (move + 1) * kPause);
        }
        return kMilliseconds * ProcessUsage::of(process).since(before).processorSeconds / moves;
    }

private:
    std::vector<std::uint8_t> seenFarAway() {
        return screenPart(m_desktop.connection(), kFarAway.x, kFarAway.y, 1, 1);
    }

    test::VirtualDesktop m_desktop;
    test::ProbeWindow m_paper;
    test::InputDriver m_input{m_desktop.connection()};
};

double costOfOwn(const test::VirtualDesktop::Options& screen, int moves) {
    Scene scene(screen);
    test::Program program(scene.desktop());
    scene.awaitSpotlight("quillon-mark", [&] { scene.input().chord({"Super_L", "Shift_L", "l"}); });
    return scene.costOfMove(program.process().pid(), moves);
}

double costOfProjecteur(const test::VirtualDesktop::Options& screen, int moves) {
    Scene scene(screen);
    Projecteur projecteur(scene.desktop());
    // Now and then it takes its first order without doing anything.
    scene.awaitSpotlight(
        "projecteur", [&] { projecteur.switchOn(); }, kTriesOfProjecteur);
    return scene.costOfMove(projecteur.process(), moves);
}

} // namespace

int main(int count, char** arguments) {
    try {
        const std::vector<std::string> options(arguments + 1, arguments + count);
        const int rounds = option(options, "--rounds", 3);
        const int moves = option(options, "--moves", 500);
        const auto screen = screenOf(options);
        const std::string subject = subjectOn("spotlight", screen);
        std::vector<double> own;
        std::vector<double> projecteur;
        std::vector<double> dearer;
        for (int round = 1; round <= rounds; ++round) {
            own.push_back(costOfOwn(screen, moves));
            measurePeer("projecteur", {subject, round}, [&] {
                projecteur.push_back(costOfProjecteur(screen, moves));
                dearer.push_back(projecteur.back() / own.back());
            });
        }
        Report report(options);
        report.add({subject, "quillon-mark: processor for a move", "ms", own});
        if (!projecteur.empty()) {
            report.add({subject, "projecteur: processor for a move", "ms", projecteur});
            report.add(
                {subject, "projecteur ÷ quillon-mark", "×", dearer, atLeast(kLessThanProjecteur)});
        }
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "spotlight-cost: " << error.what() << '\n';
        return 1;
    }
}
