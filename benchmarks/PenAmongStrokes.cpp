// Whether the pen stays as fast as on an empty screen: among ever more finished strokes, right
// after what changes many of them at once, and over the whiteboard.
//
//     pen-among-strokes [--rounds 3] [--strokes 5] [--most 10000] [--rows]

#include "benchmarks/DrawnPage.h"
#include "benchmarks/PenMeter.h"
#include "benchmarks/Report.h"

#include <sys/prctl.h>

#include <algorithm>
#include <exception>
#include <functional>
#include <iostream>
#include <iterator>
#include <optional>
#include <stdexcept>

using namespace quillon;
using namespace quillon::bench;

namespace {

constexpr int kPageSizes[] = {100, 1000, 10000, 100000};
/// The page on which everything else is tried.
constexpr int kFullPage = 10000;
/// How much slower than on an empty screen the pen may be there.
constexpr double kTolerated = 1.2;
const std::string kEmpty = "empty screen";

/// What came of it in each round, in milliseconds.
struct Times {
    std::vector<double> middles = {};
    std::vector<double> worsts = {};
    std::vector<double> firsts = {};

    void add(const PenResult& result) {
        middles.push_back(result.latency.percentile(50));
        worsts.push_back(result.latency.percentile(99));
        firsts.push_back(result.latencyOfFirst.median());
    }
};

/// Where the pen was timed.
struct Situation {
    std::string name;
    /// Of a page on which nothing else happens; otherwise nought.
    int strokes = 0;
    bool hasTarget = true;
    /// Whether each stroke comes right after an edit, which its first motion is the first to meet.
    bool isAfterEdit = false;
};

/// All of them, in the order in which they first came.
class Situations {
public:
    /// `empty` was timed on the empty screen at the same time.
    void add(const Situation& situation, const PenResult& result, const PenResult& empty) {
        auto found = std::ranges::find(m_all, situation.name,
                                       [](const Timed& each) { return each.situation.name; });
        if (found == m_all.end()) {
            m_all.push_back({situation});
            found = m_all.end() - 1;
        }
        found->times.add(result);
        found->empty.add(empty);
    }

    /// What was timed on the empty screen in the whole of a round.
    void addEmpty(const PenResult& result) { m_empty.add(result); }

    void report(Report& report) const {
        report.add({kSubject, kEmpty + ", p50", "ms", m_empty.middles});
        report.add({kSubject, kEmpty + ", p99", "ms", m_empty.worsts});
        report.add({kSubject, kEmpty + ", first motion of a stroke", "ms", m_empty.firsts});
        for (const Timed& each : m_all) {
            compare(report, each, "p50", each.times.middles, each.empty.middles);
            compare(report, each, "p99", each.times.worsts, each.empty.worsts);
            if (each.situation.isAfterEdit) {
                report.add({kSubject, each.situation.name + ", first motion of a stroke", "ms",
                            each.times.firsts});
            }
        }
        reportGrowth(report);
    }

private:
    static constexpr const char* kSubject = "pen among strokes";

    struct Timed {
        Situation situation;
        Times times = {};
        Times empty = {};
    };

    static void compare(Report& report, const Timed& timed, const std::string& percentile,
                        const std::vector<double>& times, const std::vector<double>& empty) {
        const std::string figure = timed.situation.name + ", " + percentile;
        report.add({kSubject, figure, "ms", times});
        report.add({kSubject, figure + " ÷ " + kEmpty, "×", ratios(times, empty),
                    timed.situation.hasTarget ? std::optional(atMost(kTolerated)) : std::nullopt});
    }

    /// Between the two largest pages.
    void reportGrowth(Report& report) const {
        std::vector<Timed> pages;
        std::ranges::copy_if(m_all, std::back_inserter(pages),
                             [](const Timed& each) { return each.situation.strokes > 0; });
        if (pages.size() < 2) {
            return;
        }
        const Timed& small = *(pages.end() - 2);
        const Timed& large = pages.back();
        const double growth = static_cast<double>(large.situation.strokes) /
                              static_cast<double>(small.situation.strokes);
        report.add({kSubject,
                    "p50, exponent from " +
                        grouped(static_cast<std::size_t>(small.situation.strokes)) + " to " +
                        large.situation.name,
                    "", exponents(small.times.middles, large.times.middles, growth)});
    }

    Times m_empty;
    std::vector<Timed> m_all;
};

/// One page, and the pen above it.
class PenOnPage {
public:
    DrawnPage& page() { return m_page; }

    /// Draws a stroke and takes it back.
    void measureStroke(PenResult& result) {
        m_meter.measureStroke(result);
        m_page.undo();
        m_meter.awaitErased();
        m_page.settle();
    }

private:
    DrawnPage m_page;
    PenMeter m_meter{m_page.desktop()};
};

/// One start of the program, with all situations one after the other. Another one beside it keeps
/// its page empty: the pen is timed there before each stroke among others.
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
            m_full.page().fillUpTo(size);
            measure({inWords(size), size, size <= kFullPage});
            if (size == kFullPage) {
                measureOnFullPage();
            }
        }
        m_full.page().turnToWhiteboard();
        m_full.page().fillUpTo(kFullPage);
        measure({inWords(kFullPage) + " over the whiteboard"});
        m_situations.addEmpty(m_onEmpty);
    }

private:
    static std::string inWords(int strokes) {
        return grouped(static_cast<std::size_t>(strokes)) + " strokes";
    }

    static Situation afterEdit(const std::string& edit) {
        return {.name = "right after " + edit, .isAfterEdit = true};
    }

    void warmUp() {
        PenResult ignored;
        m_empty.measureStroke(ignored);
        m_full.measureStroke(ignored);
    }

    void measureOnFullPage() {
        DrawnPage& page = m_full.page();
        measure(afterEdit("an undo"), [&page] {
            page.drawLongStroke();
            page.settle();
            page.undo();
        });
        measure(afterEdit("an erase"), [&page] { page.erase(); });
        measure(
            afterEdit("a clear"), [&page] { page.clear(); }, [&page] { page.undo(); });
        measure(afterEdit("the undo of a clear"), [&page] {
            page.clear();
            page.settle();
            page.undo();
        });
    }

    /// Times a few strokes, each right after `before`, and takes each back before `after`.
    void measure(
        const Situation& situation, const std::function<void()>& before = [] {},
        const std::function<void()>& after = [] {}) {
        PenResult result;
        PenResult onEmpty;
        for (int stroke = 0; stroke < m_strokes; ++stroke) {
            m_empty.measureStroke(onEmpty);
            before();
            m_full.measureStroke(result);
            after();
            m_full.page().settle();
        }
        if (result.missed + onEmpty.missed > 0) {
            throw std::runtime_error("motions without a picture: " + situation.name);
        }
        m_situations.add(situation, result, onEmpty);
        m_onEmpty.latency.add(onEmpty.latency);
        m_onEmpty.latencyOfFirst.add(onEmpty.latencyOfFirst);
    }

    Situations& m_situations;
    int m_strokes;
    PenOnPage m_full;
    PenOnPage m_empty;
    PenResult m_onEmpty;
};

} // namespace

int main(int count, char** arguments) {
    try {
        const std::vector<std::string> options(arguments + 1, arguments + count);
        const int rounds = option(options, "--rounds", 3);
        const int strokes = option(options, "--strokes", 5);
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
