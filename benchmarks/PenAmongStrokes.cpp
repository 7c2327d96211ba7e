// Whether the pen stays as fast as on an empty screen: among ever more finished strokes, right
// after what changes many of them at once, and over the whiteboard.
//
//     pen-among-strokes [--rounds 3] [--strokes 2] [--most 10000] [--rows]

#include "benchmarks/DrawnPage.h"
#include "benchmarks/PenMeter.h"
#include "benchmarks/Report.h"

#include <sys/prctl.h>

#include <algorithm>
#include <exception>
#include <functional>
#include <iostream>
#include <optional>
#include <stdexcept>

using namespace quillon;
using namespace quillon::bench;

namespace {

constexpr int kPageSizes[] = {0, 100, 1000, 10000, 100000};
/// The page on which everything else is tried.
constexpr int kFullPage = 10000;
/// How much slower than on an empty screen the pen may be there.
constexpr double kTolerated = 1.2;
const std::string kEmpty = "empty screen";

/// Where the pen was timed, and what came of it in each round.
struct Situation {
    std::string name;
    std::vector<double> middles = {};
    std::vector<double> worsts = {};
    bool hasTarget = true;
};

/// All of them, in the order in which they first came.
class Situations {
public:
    void add(const std::string& name, bool hasTarget, const Samples& latency) {
        auto found = std::ranges::find(m_all, name, &Situation::name);
        if (found == m_all.end()) {
            m_all.push_back({.name = name, .hasTarget = hasTarget});
            found = m_all.end() - 1;
        }
        found->middles.push_back(latency.percentile(50));
        found->worsts.push_back(latency.percentile(99));
    }

    void report(Report& report) const {
        const Situation& empty = m_all.front();
        for (const Situation& each : m_all) {
            const auto target = each.hasTarget ? std::optional(atMost(kTolerated)) : std::nullopt;
            const auto add = [&](const char* percentile, const std::vector<double>& times,
                                 const std::vector<double>& base) {
                report.add({kSubject, each.name + ", " + percentile, "ms", times});
                if (&each != &empty) {
                    report.add({kSubject, each.name + ", " + percentile + " ÷ " + kEmpty, "×",
                                ratios(times, base), target});
                }
            };
            add("p50", each.middles, empty.middles);
            add("p99", each.worsts, empty.worsts);
        }
    }

private:
    static constexpr const char* kSubject = "pen among strokes";

    std::vector<Situation> m_all;
};

/// One start of the program, with all situations one after the other.
class Round {
public:
    Round(Situations& situations, int strokes)
        : m_situations(situations)
        , m_strokes(strokes) {}

    void measureAll(int mostStrokes) {
        warmUp();
        for (const int size : kPageSizes) {
            if (size > mostStrokes) {
                continue;
            }
            m_page.fillUpTo(size);
            measure(inWords(size), size <= kFullPage);
            if (size == kFullPage) {
                measureOnFullPage();
            }
        }
        m_page.turnToWhiteboard();
        m_page.fillUpTo(kFullPage);
        measure(inWords(kFullPage) + " over the whiteboard");
    }

private:
    static std::string inWords(int strokes) {
        return strokes == 0 ? kEmpty : grouped(static_cast<std::size_t>(strokes)) + " strokes";
    }

    void warmUp() {
        PenResult ignored;
        m_meter.measureStroke(ignored);
        m_page.undo();
        m_meter.awaitErased();
    }

    void measureOnFullPage() {
        measure("right after an undo", true, [this] {
            m_page.drawLongStroke();
            m_page.settle();
            m_page.undo();
        });
        measure("right after an erase", true, [this] { m_page.erase(); });
        measure(
            "right after a clear", true, [this] { m_page.clear(); }, [this] { m_page.undo(); });
        measure("right after the undo of a clear", true, [this] {
            m_page.clear();
            m_page.settle();
            m_page.undo();
        });
    }

    /// Times a few strokes, each right after `before`, and takes them back, and then what `before`
    /// did.
    void measure(
        const std::string& name, bool hasTarget = true, const std::function<void()>& before = [] {},
        const std::function<void()>& after = [] {}) {
        PenResult result;
        for (int stroke = 0; stroke < m_strokes; ++stroke) {
            before();
            m_meter.measureStroke(result);
            m_page.undo();
            m_meter.awaitErased();
            m_page.settle();
            after();
            m_page.settle();
        }
        if (result.missed > 0) {
            throw std::runtime_error("motions without a picture: " + name);
        }
        m_situations.add(name, hasTarget, result.latency);
    }

    Situations& m_situations;
    int m_strokes;
    DrawnPage m_page;
    PenMeter m_meter{m_page.desktop()};
};

} // namespace

int main(int count, char** arguments) {
    try {
        const std::vector<std::string> options(arguments + 1, arguments + count);
        const int rounds = option(options, "--rounds", 3);
        const int strokes = option(options, "--strokes", 2);
        const int most = option(options, "--most", kFullPage);
        // Pauses of microseconds are kept as such.
        prctl(PR_SET_TIMERSLACK, 1);
        Situations situations;
        for (int round = 0; round < rounds; ++round) {
            Round(situations, strokes).measureAll(most);
        }
        Report report(options);
        situations.report(report);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "pen-among-strokes: " << error.what() << '\n';
        return 1;
    }
}
