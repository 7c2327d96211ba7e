#include "benchmarks/Statistics.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <numeric>
#include <sstream>
#include <stdexcept>

namespace quillon::bench {

void Samples::add(double value) {
    m_values.push_back(value);
}

void Samples::add(const std::vector<double>& values) {
    m_values.insert(m_values.end(), values.begin(), values.end());
}

double Samples::percentile(double percent) const {
    if (m_values.empty()) {
        return 0;
    }
    auto values = m_values;
    const auto rank = std::ceil(percent / 100 * static_cast<double>(values.size()));
    const auto index = static_cast<std::size_t>(std::max(rank, 1.0)) - 1;
    const auto nth = values.begin() + static_cast<std::ptrdiff_t>(index);
    std::nth_element(values.begin(), nth, values.end());
    return *nth;
}

double Samples::median() const {
    if (m_values.empty()) {
        return 0;
    }
    auto values = m_values;
    const auto upper = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), upper, values.end());
    if (values.size() % 2 == 1) {
        return *upper;
    }
    return std::midpoint(*std::max_element(values.begin(), upper), *upper);
}

std::string fixed(double value, int digits) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(digits) << value;
    return text.str();
}

std::string grouped(std::size_t number) {
    const std::string digits = std::to_string(number);
    if (digits.size() <= 3) {
        return digits;
    }
    const std::size_t front = digits.size() - 3;
    return digits.substr(0, front) + "," + digits.substr(front);
}

std::string row(const std::vector<std::string>& cells) {
    std::string text = "|";
    for (const std::string& cell : cells) {
        text += " " + cell + " |";
    }
    return text + "\n";
}

std::string head(const std::vector<std::string>& cells) {
    std::vector<std::string> rule(cells.size(), "---:");
    rule.front() = "---";
    return row(cells) + row(rule);
}

int option(const std::vector<std::string>& arguments, const std::string& name, int otherwise) {
    const auto found = std::ranges::find(arguments, name);
    if (found == arguments.end()) {
        return otherwise;
    }
    if (found + 1 == arguments.end()) {
        throw std::runtime_error(name + " wants a number");
    }
    return std::stoi(*(found + 1));
}

} // namespace quillon::bench
