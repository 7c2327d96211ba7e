#pragma once

#include "benchmarks/Report.h"

#include <cstddef>
#include <string>
#include <vector>

namespace quillon::bench {

/// What a figure came to, round by round, for ever larger sizes.
class Growth {
public:
    void add(std::size_t size, const std::vector<double>& rounds);

    /// Reports the exponent between the two largest sizes, which count things such as "strokes".
    /// With fewer sizes there is nothing to report.
    void report(Report& report, const std::string& figure, const std::string& things) const;

private:
    struct Found {
        std::size_t size = 0;
        std::vector<double> rounds;
    };
    std::vector<Found> m_found;
};

} // namespace quillon::bench
