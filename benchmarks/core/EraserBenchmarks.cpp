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

/// What a motion of the pen waits for, when it comes in the middle of that repaint.
void sweepSteps(benchmark::State& state) {
    using Clock = std::chrono::steady_clock;
    const StrokeList& page = pageOf(sizeOfPage(state));
    StrokeList erased = page;
    processEraser(eraserSweep(), erased);
    desktop::QtGraphics graphics;
    FinishedStrokesLayer layer(graphics);
    layer.layout(kPageSize, 1);
    // The first one warms up.
    showAll(layer, erased);
    showAll(layer, page);
    for (auto _ : state) {
        layer.update(erased, {});
        Samples steps;
        while (layer.isBehind()) {
            const auto start = Clock::now();
            layer.repaintStep();
            steps.add(std::chrono::duration<double>(Clock::now() - start).count());
        }
        state.SetIterationTime(steps.percentile(99));
        showAll(layer, page);
    }
}
BENCHMARK(sweepSteps)
    ->Name("eraser sweep, a step of its repaint, p99")
    ->UseManualTime()
    ->Iterations(1)
    ->Apply(forEachPageButTheLargest);

} // namespace
} // namespace quillon::bench
