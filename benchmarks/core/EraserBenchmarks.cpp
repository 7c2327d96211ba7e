#include "annotation/Eraser.h"
#include "annotation/FinishedStrokesLayer.h"
#include "benchmarks/Statistics.h"
#include "benchmarks/core/Pages.h"
#include "desktop/qt/QtGraphics.h"

#include <chrono>

namespace quillon::bench {
namespace {

void sweep(benchmark::State& state) {
    const StrokeList& page = pageOf(sizeOfPage(state));
    const DrawingStroke eraser = eraserSweep();
    for (auto _ : state) {
        StrokeList strokes = page;
        processEraser(eraser, strokes);
        benchmark::DoNotOptimize(strokes);
    }
}
BENCHMARK(sweep)->Name("eraser sweep of 200 points")->Apply(forEachPage);

void sweepShown(benchmark::State& state) {
    const StrokeList& page = pageOf(sizeOfPage(state));
    const DrawingStroke eraser = eraserSweep();
    desktop::QtGraphics graphics;
    FinishedStrokesLayer layer(graphics);
    layer.layout(kPageSize, 1);
    showAll(layer, page);
    for (auto _ : state) {
        StrokeList strokes = page;
        processEraser(eraser, strokes);
        showAll(layer, strokes);
        showAll(layer, page);
    }
}
BENCHMARK(sweepShown)->Name("eraser sweep and its undo, painted")->Apply(forEachPageButTheLargest);
BENCHMARK(sweepShown)->Name("eraser sweep and its undo, painted")->Apply(onceOnTheLargestPage);

/// What a motion of the pen waits for, when it comes in the middle of that repaint.
void sweepSteps(benchmark::State& state) {
    using Clock = std::chrono::steady_clock;
    SweptPage swept(sizeOfPage(state));
    // The first one warms up.
    showAll(swept.layer, swept.erased);
    showAll(swept.layer, swept.page);
    for (auto _ : state) {
        swept.layer.update(swept.erased, {});
        Samples steps;
        while (swept.layer.isBehind()) {
            const auto start = Clock::now();
            swept.layer.repaintStep();
            steps.add(std::chrono::duration<double>(Clock::now() - start).count());
        }
        state.SetIterationTime(steps.percentile(99));
        showAll(swept.layer, swept.page);
    }
}
BENCHMARK(sweepSteps)
    ->Name("eraser sweep, a step of its repaint, p99")
    ->UseManualTime()
    ->Iterations(1)
    ->Apply(forEachPageButTheLargest);

} // namespace
} // namespace quillon::bench
