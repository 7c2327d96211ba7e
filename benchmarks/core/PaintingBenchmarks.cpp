#include "annotation/FinishedStrokesLayer.h"
#include "annotation/StrokeRenderer.h"
#include "benchmarks/core/Pages.h"
#include "desktop/qt/QtGraphics.h"

namespace quillon::bench {
namespace {

/// About the size of a word that is written by hand.
constexpr CGRect kRegion{860, 440, 200, 200};

void region(benchmark::State& state) {
    const StrokeList& page = pageOf(sizeOfPage(state));
    desktop::QtGraphics graphics;
    const auto bitmap = graphics.makeBitmap(kPageSize, 1);
    for (auto _ : state) {
        bitmap->paint(kRegion, [&](GraphicsContext& context) {
            context.clear(context.clipBounds());
            drawStrokes(context, page, graphics);
        });
    }
}
BENCHMARK(region)->Name("region of 200 × 200 repainted")->Apply(forEachPage);

void wholeScreen(benchmark::State& state) {
    const StrokeList& page = pageOf(sizeOfPage(state));
    desktop::QtGraphics graphics;
    for (auto _ : state) {
        FinishedStrokesLayer layer(graphics);
        layer.layout(kPageSize, 1);
        showAll(layer, page);
    }
}
BENCHMARK(wholeScreen)->Name("whole screen repainted")->Apply(forEachPageButTheLargest);
BENCHMARK(wholeScreen)->Name("whole screen repainted")->Apply(onceOnTheLargestPage);

} // namespace
} // namespace quillon::bench
