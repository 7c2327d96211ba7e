#include "benchmarks/Report.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace quillon::bench {

namespace {

constexpr std::size_t kFieldsOfLine = 5;
constexpr int kSignificantDigits = 3;

/// "16.0", "0.0421", "1280", and "0" for nothing at all.
std::string readable(double value) {
    if (value == 0) {
        return "0";
    }
    const auto magnitude = static_cast<int>(std::floor(std::log10(std::abs(value))));
    return fixed(value, std::clamp(kSignificantDigits - 1 - magnitude, 0, 6));
}

std::string withUnit(const std::string& number, const std::string& unit) {
    return unit.empty() ? number : number + " " + unit;
}

std::string inWords(const Target& target, const std::string& unit) {
    std::ostringstream text;
    text << (target.kind == Target::Kind::atMost ? "≤ " : "≥ ") << target.value;
    return withUnit(text.str(), unit);
}

std::string lineOf(const std::optional<Target>& target) {
    if (!target) {
        return "";
    }
    std::ostringstream text;
    text << (target->kind == Target::Kind::atMost ? '<' : '>') << target->value;
    return text.str();
}

std::optional<Target> targetOf(const std::string& field) {
    if (field.empty()) {
        return std::nullopt;
    }
    const auto kind = field.front() == '<' ? Target::Kind::atMost : Target::Kind::atLeast;
    return Target{kind, std::stod(field.substr(1))};
}

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);) {
        parts.push_back(part);
    }
    return parts;
}

} // namespace

bool Target::isReachedBy(const Samples& rounds) const {
    if (kind == Kind::atLeast) {
        return rounds.median() >= value;
    }
    return (value == 0 ? rounds.percentile(100) : rounds.median()) <= value;
}

std::string Row::line() const {
    std::ostringstream text;
    text << subject << '\t' << figure << '\t' << unit << '\t' << lineOf(target) << '\t';
    for (std::size_t round = 0; round < rounds.size(); ++round) {
        text << (round == 0 ? "" : " ") << rounds[round];
    }
    return text.str() + "\n";
}

Row Row::fromLine(const std::string& line) {
    const auto fields = split(line, '\t');
    if (fields.size() != kFieldsOfLine) {
        throw std::runtime_error("this is no row: " + line);
    }
    Row row{fields[0], fields[1], fields[2], {}, targetOf(fields[3])};
    for (const std::string& value : split(fields[4], ' ')) {
        row.rounds.push_back(std::stod(value));
    }
    return row;
}

Report::Report(const std::vector<std::string>& arguments)
    : m_isRows(std::ranges::find(arguments, "--rows") != arguments.end()) {
    if (!m_isRows) {
        std::cout << head({"", "", "median", "lowest – highest", "rounds", "target", "reached"});
    }
}

void Report::add(const Row& found) {
    if (m_isRows) {
        std::cout << found.line() << std::flush;
        return;
    }
    Samples rounds;
    rounds.add(found.rounds);
    const auto& target = found.target;
    // A subject stands beside the first of its rows alone.
    const bool isNewSubject = std::exchange(m_subject, found.subject) != found.subject;
    std::cout << row({isNewSubject ? "**" + found.subject + "**" : "", found.figure,
                      withUnit(readable(rounds.median()), found.unit),
                      readable(rounds.percentile(0)) + " – " + readable(rounds.percentile(100)),
                      std::to_string(rounds.count()), target ? inWords(*target, found.unit) : "",
                      !target                       ? ""
                      : target->isReachedBy(rounds) ? "yes"
                                                    : "**no**"})
              << std::flush;
}

std::vector<double> ratios(const std::vector<double>& values, const std::vector<double>& bases) {
    std::vector<double> quotients;
    for (std::size_t round = 0; round < std::min(values.size(), bases.size()); ++round) {
        quotients.push_back(values[round] / bases[round]);
    }
    return quotients;
}

std::vector<double> exponents(const std::vector<double>& small, const std::vector<double>& large,
                              double growthOfSize) {
    std::vector<double> found;
    for (const double growth : ratios(large, small)) {
        found.push_back(std::log(growth) / std::log(growthOfSize));
    }
    return found;
}

} // namespace quillon::bench
