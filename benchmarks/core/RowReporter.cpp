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
    }
    const std::size_t strokes = std::stoul(runs.front().run_name.args);
    m_report.add({"core", name + ", " + grouped(strokes) + " strokes", "ms", times,
                  targetOf(name, strokes)});
    m_timed.push_back({strokes, times});
}

void RowReporter::reportGrowth() {
    const auto timed = std::exchange(m_timed, {});
    if (timed.size() < 2) {
        return;
    }
    const Timed& small = *(timed.end() - 2);
    const Timed& large = timed.back();
    const double growth = static_cast<double>(large.strokes) / static_cast<double>(small.strokes);
    m_report.add({"core",
                  m_name + ", exponent from " + grouped(small.strokes) + " to " +
                      grouped(large.strokes) + " strokes",
                  "", exponents(small.times, large.times, growth)});
}

} // namespace quillon::bench
