// Makes one Markdown table of the rows of several benchmarks.
//
//     { pen-latency --rows; lens-frames --rows; } | bench-table

#include "benchmarks/Report.h"

#include <exception>
#include <iostream>
#include <string>

using namespace quillon::bench;

int main() {
    try {
        Report table({});
        for (std::string line; std::getline(std::cin, line);) {
            table.add(Row::fromLine(line));
        }
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "bench-table: " << error.what() << '\n';
        return 1;
    }
}
