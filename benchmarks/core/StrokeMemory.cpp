// What strokes and their history hold in memory.
//
//     stroke-memory [--rows]

#include "annotation/DrawingState.h"
#include "benchmarks/Report.h"
#include "benchmarks/Statistics.h"
#include "benchmarks/core/LiveMemory.h"
#include "benchmarks/core/Page.h"

#include <exception>
#include <iostream>

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

} // namespace

int main(int count, char** arguments) {
    try {
        Report report({arguments + 1, arguments + count});
        for (const std::size_t strokes : kPageSizes) {
            pageOf(0);
            const std::size_t before = liveBytes();
            const StrokeList& page = pageOf(strokes);
            const std::string ofPage = grouped(strokes) + " strokes";
            report.add(
                {"core", "memory: " + ofPage + " of 100 points", "MB", {megabytesSince(before)}});
            const auto target = strokes == kLargePage ? std::optional(atMost(16)) : std::nullopt;
            const auto draw = [&](DrawingState& drawing, std::size_t step) {
                drawing.addStroke(strokeOnPage(static_cast<std::uint32_t>(strokes + step)));
            };
            report.add({"core",
                        "memory: 50 snapshots above " + ofPage + ", each after a new one",
                        "MB",
                        {snapshotsAbove(page, draw)},
                        target});
            const auto remove = [](DrawingState& drawing, std::size_t) {
                if (!drawing.strokes->empty()) {
                    drawing.removeStroke(drawing.strokes.get()[0].id());
                }
            };
            report.add({"core",
                        "memory: 50 snapshots above " + ofPage + ", each without the oldest",
                        "MB",
                        {snapshotsAbove(page, remove)},
                        target});
        }
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "stroke-memory: " << error.what() << '\n';
        return 1;
    }
}
