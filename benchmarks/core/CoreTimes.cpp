// What the annotation engine needs for its work among ever more strokes.
//
//     core-times [--rows] [any option of Google Benchmark, such as --benchmark_filter=eraser]

#include "benchmarks/core/RowReporter.h"

#include <exception>
#include <iostream>

int main(int count, char** arguments) {
    using namespace quillon::bench;
    try {
        benchmark::Initialize(&count, arguments);
        Report report({arguments + 1, arguments + count});
        RowReporter reporter(report);
        benchmark::RunSpecifiedBenchmarks(&reporter);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "core-times: " << error.what() << '\n';
        return 1;
    }
}
