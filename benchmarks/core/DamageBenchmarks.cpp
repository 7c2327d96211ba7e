#include "annotation/LiveStrokeLayer.h"
#include "benchmarks/core/Pages.h"
#include "desktop/qt/QtGraphics.h"

#include <cmath>
#include <optional>

namespace quillon::bench {
namespace {

/// What an update marks to be painted anew, none of which is painted here.
void sweepMarked(benchmark::State& state) {
    SweptPage swept(sizeOfPage(state));
    swept.layer.update(swept.page, {});
    for (auto _ : state) {
        swept.layer.update(swept.erased, {});
        swept.layer.update(swept.page, {});
    }
}
BENCHMARK(sweepMarked)->Name("damage of an eraser sweep and its undo")->Apply(forEachPage);

/// Few beside the points of all but the shortest strokes.
constexpr benchmark::IterationCount kMotions = 200;
constexpr CGPoint kMiddle{960, 540};
constexpr CGFloat kRadius = 400;
constexpr CGFloat kStep = 4;

/// A line round and round, one point longer with each call.
void grow(DrawingStroke& stroke) {
    const double angle = kStep / kRadius * static_cast<double>(stroke.points.size());
    stroke.points.emplace_back(
        CGPoint{kMiddle.x + kRadius * std::cos(angle), kMiddle.y + kRadius * std::sin(angle)});
}

/// A motion of the pen, whose stroke has that many points already besides its first.
void tail(benchmark::State& state) {
    std::optional<DrawingStroke> stroke = strokeOnPage(0);
    stroke->points.clear();
    while (stroke->points.size() <= sizeOfPage(state)) {
        grow(*stroke);
    }
    desktop::QtGraphics graphics;
    LiveStrokeLayer layer(graphics);
    layer.layout(kPageSize, 1);
    layer.update(stroke);
    for (auto _ : state) {
        grow(*stroke);
        benchmark::DoNotOptimize(layer.update(stroke));
    }
    state.SetLabel("points");
}
BENCHMARK(tail)
    ->Name("damage of one more point of the pen")
    ->Iterations(kMotions)
    ->Apply(forEachPage);

} // namespace
} // namespace quillon::bench
