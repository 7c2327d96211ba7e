// How soon what follows the pointer is where the pointer is, and what following costs, side by side
// with the least that following can be.
//
//     pointer-following [--rounds 3] [--moves 200] [--seconds 3] [--width 1920] [--height 1080]
//                       [--rows]

#include "benchmarks/ChosenScreen.h"
#include "benchmarks/FollowerScene.h"
#include "benchmarks/Report.h"
#include "benchmarks/Statistics.h"

#include <sys/prctl.h>

#include <algorithm>
#include <exception>
#include <iostream>
#include <memory>
#include <optional>

using namespace quillon;
using namespace quillon::bench;

namespace {

/// From the pointer to the middle of the halo's line.
constexpr int kHaloRadius = 17;
/// From the pointer to a place just inside of the spotlight's circle.
constexpr int kCircleRadius = 145;
/// In milliseconds, of the program's own pictures.
constexpr double kMostInTheMiddle = 1;
constexpr double kMostOfAlmostAll = 4;
/// In percent of a core.
constexpr double kMostLoad = 25;

/// The halo's line right of the pointer, where nothing of it was when the pointer comes from the
/// left.
bool isHaloAt(const test::ScreenReader& screen, test::Pixel place) {
    return !test::isNear(screen.pixel({place.x + kHaloRadius, place.y}), followedPaper, 40);
}

/// The right edge of the spotlight's circle, which comes last when the pointer moves to the right.
bool isCircleAt(const test::ScreenReader& screen, test::Pixel place) {
    return test::isNear(screen.pixel({place.x + kCircleRadius, place.y}), followedPaper, 2);
}

/// As a hand moves it, always to the right but for the way back.
test::Pixel step(int move) {
    return {400 + 12 * (move % 80), 500 + move % 7};
}

/// Far enough apart that nothing of one place is seen at the next.
test::Pixel jump(int move) {
    return {400 + 1000 * (move % 2) + move % 7, 300 + 400 * (move % 2)};
}

/// Whose figures have to come to something: the bare follower is the floor for the program.
enum class Role { floor, own };

class Measurement {
public:
    Measurement(const test::VirtualDesktop::Options& screen, int moves, int seconds)
        : m_screen(screen)
        , m_moves(moves)
        , m_seconds(seconds) {}

    const std::vector<Row>& rows() const { return m_rows; }

    void takeRound() {
        takeTimes("bare halo", Role::floor,
                  *std::make_unique<BareScene>(m_screen, "halo", isHaloAt));
        takeTimes("halo", Role::own, *std::make_unique<ProgramScene>(m_screen, "h", isHaloAt));
        takeTimes("bare spotlight", Role::floor,
                  *std::make_unique<BareScene>(m_screen, "spotlight", isCircleAt));
        const auto spotlight = std::make_unique<ProgramScene>(m_screen, "l", isCircleAt);
        takeTimes("spotlight", Role::own, *spotlight);
        spotlight->toggle("h");
        add("halo and spotlight: of a core at 1000 moves a second", "%", atMost(kMostLoad),
            spotlight->loadOfBurst(m_seconds));
    }

private:
    void takeTimes(const std::string& name, Role role, FollowerScene& scene) {
        const auto take = [&](const std::string& kind, FollowerScene::Way way) {
            const Samples times = scene.timeMoves(way, m_moves);
            const auto addTime = [&](const std::string& which, double percent, double most) {
                const std::string figure = name + ": " + kind + " → picture, " + which;
                const double time = times.percentile(percent);
                if (role == Role::floor) {
                    add(figure, "ms", std::nullopt, time);
                } else {
                    add(figure, "ms", atMost(most), time);
                    add(figure + " ÷ bare " + name, "×", std::nullopt,
                        time / lastOf("bare " + figure));
                }
            };
            addTime("p50", 50, kMostInTheMiddle);
            addTime("p99", 99, kMostOfAlmostAll);
        };
        take("step", step);
        take("jump", jump);
    }

    /// Adds what a figure came to in one more round.
    void add(const std::string& figure, const std::string& unit,
             const std::optional<Target>& target, double value) {
        auto row = std::ranges::find(m_rows, figure, &Row::figure);
        if (row == m_rows.end()) {
            row = m_rows.insert(row, {subjectOn("pointer", m_screen), figure, unit, {}, target});
        }
        row->rounds.push_back(value);
    }

    /// What a figure came to in this round.
    double lastOf(const std::string& figure) const {
        return std::ranges::find(m_rows, figure, &Row::figure)->rounds.back();
    }

    test::VirtualDesktop::Options m_screen;
    int m_moves;
    int m_seconds;
    std::vector<Row> m_rows;
};

} // namespace

int main(int count, char** arguments) {
    try {
        const std::vector<std::string> options(arguments + 1, arguments + count);
        // Pauses of microseconds are kept as such.
        prctl(PR_SET_TIMERSLACK, 1);
        Measurement measurement(screenOf(options), option(options, "--moves", 200),
                                option(options, "--seconds", 3));
        for (int round = 0; round < option(options, "--rounds", 3); ++round) {
            measurement.takeRound();
        }
        Report report(options);
        for (const Row& row : measurement.rows()) {
            report.add(row);
        }
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "pointer-following: " << error.what() << '\n';
        return 1;
    }
}
