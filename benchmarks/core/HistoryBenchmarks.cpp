#include "annotation/DrawingState.h"
#include "annotation/FinishedStrokesLayer.h"
#include "benchmarks/core/Pages.h"
#include "desktop/qt/QtGraphics.h"

namespace quillon::bench {
namespace {

/// A page with one more stroke, which can be undone and done again.
void drawPage(DrawingState& drawing, std::size_t strokes) {
    drawing.strokes = pageOf(strokes);
    drawing.addStroke(strokeOnPage(static_cast<std::uint32_t>(strokes)));
}

/// Each change copies what the snapshot before it shares with the page.
void snapshot(benchmark::State& state) {
    StrokeList page = pageOf(sizeOfPage(state));
    page.append(strokeOnPage(0));
    const std::size_t middle = page.size() / 2;
    const DrawingStroke changed = page[middle];
    StrokeList last = page;
    for (auto _ : state) {
        page.replace(middle, changed);
        last = page;
        benchmark::DoNotOptimize(last);
    }
}
BENCHMARK(snapshot)->Name("snapshot after a stroke has changed")->Apply(forEachPage);

void undo(benchmark::State& state) {
    DrawingState drawing;
    drawPage(drawing, sizeOfPage(state));
    for (auto _ : state) {
        drawing.undo();
        drawing.redo();
    }
}
BENCHMARK(undo)->Name("undo and redo of a stroke")->Apply(forEachPage);

void undoShown(benchmark::State& state) {
    DrawingState drawing;
    drawPage(drawing, sizeOfPage(state));
    desktop::QtGraphics graphics;
    FinishedStrokesLayer layer(graphics);
    layer.layout(kPageSize, 1);
    showAll(layer, drawing.strokes);
    for (auto _ : state) {
        drawing.undo();
        showAll(layer, drawing.strokes);
        drawing.redo();
        showAll(layer, drawing.strokes);
    }
}
BENCHMARK(undoShown)->Name("undo and redo of a stroke, painted")->Apply(forEachPageButTheLargest);
BENCHMARK(undoShown)->Name("undo and redo of a stroke, painted")->Apply(onceOnTheLargestPage);

void removal(benchmark::State& state) {
    DrawingState drawing;
    drawPage(drawing, sizeOfPage(state));
    const UUID middle = drawing.strokes.get()[sizeOfPage(state) / 2].id();
    for (auto _ : state) {
        drawing.removeStroke(middle);
        drawing.undo();
    }
}
BENCHMARK(removal)->Name("removal of a stroke from the middle and its undo")->Apply(forEachPage);

void difference(benchmark::State& state) {
    const StrokeList& before = pageOf(sizeOfPage(state));
    StrokeList after = before;
    if (!before.empty()) {
        after.removeIf([middle = before[before.size() / 2].id()](const DrawingStroke& stroke) {
            return stroke.id() == middle;
        });
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(StrokeList::difference(before, after));
    }
}
BENCHMARK(difference)->Name("damage of that removal")->Apply(forEachPage);

} // namespace
} // namespace quillon::bench
