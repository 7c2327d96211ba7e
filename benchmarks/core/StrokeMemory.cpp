// What strokes and their history hold in memory.
//
//     stroke-memory [--rows]

#include "annotation/DrawingState.h"
#include "benchmarks/Report.h"
#include "benchmarks/Statistics.h"
#include "benchmarks/core/Growth.h"
#include "benchmarks/core/LiveMemory.h"
#include "benchmarks/core/Page.h"

#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <utility>

using namespace quillon;
using namespace quillon::bench;

namespace {

constexpr double kMegabyte = 1024 * 1024;

double megabytesSince(std::size_t before) {
    return (static_cast<double>(liveBytes()) - static_cast<double>(before)) / kMegabyte;
}

/// What as many snapshots as there can be hold on top of the page, when each follows an `edit`;
/// new strokes that the edits bring count along.
template <typename Edit>
double snapshotsAbove(const StrokeList& page, Edit&& edit) {
    DrawingState drawing;
    drawing.strokes = page;
    const std::size_t before = liveBytes();
    for (std::size_t step = 0; step < DrawingState::maxUndoSteps; ++step) {
        edit(drawing, step);
    }
    return megabytesSince(before);
}

/// Megabytes of one kind, for pages of ever more strokes.
class Memory {
public:
    /// The figure is told in the words before and behind the strokes.
    Memory(Report& report, std::string before, std::string behind)
        : m_report(report)
        , m_before(std::move(before))
        , m_behind(std::move(behind)) {}

    void add(std::size_t strokes, double megabytes, std::optional<Target> target = {}) {
        const std::string figure = m_before + grouped(strokes) + " strokes" + m_behind;
        m_report.add({"core", figure, "MB", {megabytes}, target});
        m_growth.add(strokes, {megabytes});
    }
    void reportGrowth() const {
        m_growth.report(m_report, m_before + "strokes" + m_behind, "strokes");
    }

private:
    Report& m_report;
    std::string m_before;
    std::string m_behind;
    Growth m_growth;
};

} // namespace

int main(int count, char** arguments) {
    try {
        Report report({arguments + 1, arguments + count});
        Memory ofPage(report, "memory: ", " of 100 points");
        Memory ofDrawing(report, "memory: 50 snapshots above ", ", each after a new one");
        Memory ofRemoval(report, "memory: 50 snapshots above ", ", each without the oldest");
        for (const std::size_t strokes : kPageSizes) {
            pageOf(0);
            const std::size_t before = liveBytes();
            const StrokeList& page = pageOf(strokes);
            ofPage.add(strokes, megabytesSince(before));
            const auto target = strokes == kLargePage ? std::optional(atMost(16)) : std::nullopt;
            const auto draw = [&](DrawingState& drawing, std::size_t step) {
                drawing.addStroke(strokeOnPage(static_cast<std::uint32_t>(strokes + step)));
            };
            ofDrawing.add(strokes, snapshotsAbove(page, draw), target);
            const auto remove = [](DrawingState& drawing, std::size_t) {
                if (!drawing.strokes->empty()) {
                    drawing.removeStroke(drawing.strokes.get()[0].id());
                }
            };
            ofRemoval.add(strokes, snapshotsAbove(page, remove), target);
        }
        for (const Memory* memory : {&ofPage, &ofDrawing, &ofRemoval}) {
            memory->reportGrowth();
        }
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "stroke-memory: " << error.what() << '\n';
        return 1;
    }
}
