#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace quillon::bench {

/// The value below which the given part of the samples lies, `part` from 0 to 1. The samples must
/// not be empty.
inline double percentile(std::vector<double> samples, double part) {
    std::ranges::sort(samples);
    const auto last = static_cast<double>(samples.size() - 1);
    return samples[static_cast<std::size_t>(part * last + 0.5)];
}

} // namespace quillon::bench
