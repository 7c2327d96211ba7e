#pragma once

#include "benchmarks/Statistics.h"

#include <optional>
#include <string>
#include <vector>

namespace quillon::bench {

/// What a figure is to come to.
struct Target {
    enum class Kind { atMost, atLeast };

    Kind kind = Kind::atMost;
    double value = 0;

    /// Whether the median of the rounds reaches it; "none at all" is to hold in every round.
    bool isReachedBy(const Samples& rounds) const;
};

inline Target atMost(double value) {
    return {Target::Kind::atMost, value};
}
inline Target atLeast(double value) {
    return {Target::Kind::atLeast, value};
}

/// One figure of a benchmark, with what it came to in each round.
struct Row {
    /// What the figure belongs to: "pen", "lens".
    std::string subject;
    /// What was measured, in words.
    std::string figure;
    /// "ms", "MB", "×" for a ratio; empty for a plain number.
    std::string unit;
    std::vector<double> rounds;
    std::optional<Target> target = {};

    /// A line of fields with tabs between them: subject, figure, unit, target, rounds.
    std::string line() const;
    /// Throws when the text is no such line.
    static Row fromLine(const std::string& line);
};

/// Says what a benchmark found, row by row as it is found: as a Markdown table, or, with `--rows`
/// on the command line, as lines that `bench-table` makes one table of.
class Report {
public:
    explicit Report(const std::vector<std::string>& arguments);
    void add(const Row& row);

private:
    bool m_isRows;
    std::string m_subject;
};

/// Each value divided by the one of the same round.
std::vector<double> ratios(const std::vector<double>& values, const std::vector<double>& bases);

/// How a figure grows between two sizes: k when it grows with the k-th power of the size.
std::vector<double> exponents(const std::vector<double>& small, const std::vector<double>& large,
                              double growthOfSize);

} // namespace quillon::bench
