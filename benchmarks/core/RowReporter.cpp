#include "benchmarks/core/RowReporter.h"

#include "benchmarks/Statistics.h"
#include "benchmarks/core/Page.h"

#include <optional>
#include <utility>

namespace quillon::bench {

namespace {

constexpr double kMilliseconds = 1000;

std::optional<Target> targetOf(const std::string& name, std::size_t strokes) {
    if (name == "eraser sweep of 200 points" && strokes == kLargePage) {
        return atMost(16);
    }
    return std::nullopt;
}

std::vector<double> timesOf(const std::vector<benchmark::BenchmarkReporter::Run>& runs) {
    std::vector<double> times;
    for (const auto& run : runs) {
        if (run.run_type == benchmark::BenchmarkReporter::Run::RT_Iteration) {
            times.push_back(kMilliseconds * run.real_accumulated_time /
                            static_cast<double>(run.iterations));
        }
    }
    return times;
}

} // namespace

void RowReporter::ReportRuns(const std::vector<Run>& runs) {
    const auto times = timesOf(runs);
    if (times.empty()) {
        return;
    }
    const std::string& name = runs.front().run_name.function_name;
    if (name != m_name) {
        reportGrowth();
        m_name = name;
        m_things = runs.front().report_label.empty() ? "strokes" : runs.front().report_label;
    }
    const std::size_t size = std::stoul(runs.front().run_name.args);
    m_report.add(
        {"core", name + ", " + grouped(size) + " " + m_things, "ms", times, targetOf(name, size)});
    m_growth.add(size, times);
}

void RowReporter::reportGrowth() {
    std::exchange(m_growth, {}).report(m_report, m_name, m_things);
}

} // namespace quillon::bench
