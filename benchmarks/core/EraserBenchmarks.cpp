#include "annotation/Eraser.h"
#include "annotation/FinishedStrokesLayer.h"
#include "benchmarks/core/Pages.h"
#include "desktop/qt/QtGraphics.h"

#include <algorithm>
#include <chrono>
#include <vector>

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
    showAll(layer, page);
    for (auto _ : state) {
        layer.update(erased, {});
        std::vector<std::chrono::duration<double>> steps;
        while (layer.isBehind()) {
            const auto start = Clock::now();
            layer.repaintStep();
            steps.push_back(Clock::now() - start);
        }
        std::ranges::sort(steps);
        state.SetIterationTime(steps.empty() ? 0 : steps[steps.size() * 99 / 100].count());
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
