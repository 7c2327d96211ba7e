#pragma once

#include "benchmarks/Report.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>
#include <vector>

namespace quillon::bench {

/// Hands what Google Benchmark has timed on to a report: a row for each size of a page with the
/// repetitions as rounds, and one for the growth between the two largest sizes.
class RowReporter : public benchmark::BenchmarkReporter {
public:
    explicit RowReporter(Report& report)
        : m_report(report) {}

    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override { reportGrowth(); }

private:
    struct Timed {
        std::size_t strokes = 0;
        std::vector<double> times;
    };
    /// Of what `m_timed` holds, which is then forgotten.
    void reportGrowth();

    Report& m_report;
    std::string m_name;
    std::vector<Timed> m_timed;
};

} // namespace quillon::bench
