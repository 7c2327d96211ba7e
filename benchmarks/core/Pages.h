#pragma once

#include "annotation/Eraser.h"
#include "annotation/FinishedStrokesLayer.h"
#include "benchmarks/core/Page.h"
#include "desktop/qt/QtGraphics.h"

#include <benchmark/benchmark.h>

#include <iterator>

namespace quillon::bench {

/// Runs a benchmark once for each size of a page, which it finds in `state.range()`.
inline void forEachPage(benchmark::internal::Benchmark* benchmark) {
    for (const std::size_t strokes : kPageSizes) {
        benchmark->Arg(static_cast<std::int64_t>(strokes));
    }
    benchmark->Unit(benchmark::kMillisecond);
}

/// The same without the largest page, for what takes seconds there.
inline void forEachPageButTheLargest(benchmark::internal::Benchmark* benchmark) {
    for (const std::size_t strokes : kPageSizes) {
        if (strokes <= kLargePage) {
            benchmark->Arg(static_cast<std::int64_t>(strokes));
        }
    }
    benchmark->Unit(benchmark::kMillisecond);
}

/// The largest page alone, just once.
inline void onceOnTheLargestPage(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(static_cast<std::int64_t>(std::end(kPageSizes)[-1]))
        ->Iterations(1)
        ->Repetitions(1)
        ->Unit(benchmark::kMillisecond);
}

/// Makes the layer show these strokes, with all that remains to be repainted.
inline void showAll(FinishedStrokesLayer& layer, const StrokeList& strokes) {
    layer.update(strokes, {});
    while (layer.isBehind()) {
        layer.repaintStep();
    }
}

/// A page with what an eraser pass leaves of it, and a layer that can show both.
struct SweptPage {
    explicit SweptPage(std::size_t strokes)
        : page(pageOf(strokes))
        , erased(page) {
        processEraser(eraserSweep(), erased);
        layer.layout(kPageSize, 1);
    }

    const StrokeList& page;
    StrokeList erased;
    desktop::QtGraphics graphics;
    FinishedStrokesLayer layer{graphics};
};

inline std::size_t sizeOfPage(const benchmark::State& state) {
    return static_cast<std::size_t>(state.range());
}

} // namespace quillon::bench
