#pragma once

#include "benchmarks/Report.h"
#include "benchmarks/core/Growth.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace quillon::bench {

/// Hands what Google Benchmark has timed on to a report: a row for each size of a page with the
/// repetitions as rounds, and one for the growth between the two largest sizes. A size counts
/// strokes, unless the label of the benchmark is another word.
class RowReporter : public benchmark::BenchmarkReporter {
public:
    explicit RowReporter(Report& report)
        : m_report(report) {}

    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override { reportGrowth(); }

private:
    /// Of the last benchmark, which is then forgotten.
    void reportGrowth();

    Report& m_report;
    std::string m_name;
    std::string m_things;
    Growth m_growth;
};

} // namespace quillon::bench
