#pragma once

#include <string>
#include <vector>

namespace quillon::bench {

/// What was measured, in any unit.
class Samples {
public:
    void add(double value);
    void add(const Samples& others) { add(others.m_values); }
    void add(const std::vector<double>& values);

    std::size_t count() const { return m_values.size(); }
    /// The smallest value that `percent` of all values do not exceed (nearest rank); nought when
    /// there are none.
    double percentile(double percent) const;
    /// The value in the middle: between two values in the middle, their mean. Nought when there are
    /// none.
    double median() const;

private:
    std::vector<double> m_values;
};

/// A number with so many digits after the point.
std::string fixed(double value, int digits);

/// A whole number below a million as it is read: "10,000".
std::string grouped(std::size_t number);

/// A Markdown table row: "| a | b |".
std::string row(const std::vector<std::string>& cells);
/// A Markdown table head with its rule; every column but the first stands to the right.
std::string head(const std::vector<std::string>& cells);

/// The whole number after `name` on a command line such as `--rounds 5`; throws when it is none.
int option(const std::vector<std::string>& arguments, const std::string& name, int otherwise);

} // namespace quillon::bench
