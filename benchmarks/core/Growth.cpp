#include "benchmarks/core/Growth.h"

#include "benchmarks/Statistics.h"

namespace quillon::bench {

void Growth::add(std::size_t size, const std::vector<double>& rounds) {
    m_found.push_back({size, rounds});
}

void Growth::report(Report& report, const std::string& figure, const std::string& things) const {
    if (m_found.size() < 2) {
        return;
    }
    const Found& small = *(m_found.end() - 2);
    const Found& large = m_found.back();
    const double growth = static_cast<double>(large.size) / static_cast<double>(small.size);
    report.add({"core",
                figure + ", exponent from " + grouped(small.size) + " to " + grouped(large.size) +
                    " " + things,
                "", exponents(small.rounds, large.rounds, growth)});
}

} // namespace quillon::bench
