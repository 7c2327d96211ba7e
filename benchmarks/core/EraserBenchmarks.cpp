#include "annotation/Eraser.h"
#include "annotation/FinishedStrokesLayer.h"
#include "benchmarks/core/Pages.h"
#include "desktop/qt/QtGraphics.h"

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

} // namespace
} // namespace quillon::bench
