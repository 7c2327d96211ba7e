// How often a processor stands still. Each does nothing but look at the clock, one after the other,
// and what lies between two looks is taken from it: by the host of a virtual machine, by the
// kernel, or by another program. Whatever is timed meets such pauses as well, and more of them the
// more processors it needs at a time.
//
//     machine-pauses [--rounds 5] [--seconds 2] [--rows]

#include "benchmarks/Report.h"

#include <sched.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

using namespace quillon::bench;

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr Milliseconds kShortest{0.2};

struct Pauses {
    int count = 0;
    Milliseconds longest{0};
};

void stayOn(std::size_t processor) {
    cpu_set_t only;
    CPU_ZERO(&only);
    CPU_SET(processor, &only);
    if (sched_setaffinity(0, sizeof only, &only) != 0) {
        throw std::runtime_error("the program cannot be held on one processor");
    }
}

std::vector<std::size_t> processors() {
    cpu_set_t all;
    if (sched_getaffinity(0, sizeof all, &all) != 0) {
        throw std::runtime_error("the processors are not known");
    }
    std::vector<std::size_t> numbers;
    for (std::size_t number = 0; number < CPU_SETSIZE; ++number) {
        if (CPU_ISSET(number, &all)) {
            numbers.push_back(number);
        }
    }
    return numbers;
}

Pauses pausesDuring(Milliseconds time) {
    Pauses pauses;
    const auto start = Clock::now();
    for (auto before = start; before - start < time;) {
        const auto now = Clock::now();
        if (now - before > kShortest) {
            ++pauses.count;
            pauses.longest = std::max<Milliseconds>(pauses.longest, now - before);
        }
        before = now;
    }
    return pauses;
}

} // namespace

int main(int count, char** arguments) {
    try {
        const std::vector<std::string> options(arguments + 1, arguments + count);
        const int rounds = option(options, "--rounds", 5);
        const int seconds = option(options, "--seconds", 2);
        const Milliseconds time = std::chrono::seconds(seconds);
        const std::vector<std::size_t> all = processors();
        std::vector<double> pausesPerSecond;
        std::vector<double> longest;
        for (int round = 0; round < rounds; ++round) {
            Pauses found;
            // One after the other, for a part of the time each: what is to be found is not what
            // they do to each other.
            for (const std::size_t processor : all) {
                stayOn(processor);
                const Pauses here = pausesDuring(time / all.size());
                found.count += here.count;
                found.longest = std::max(found.longest, here.longest);
            }
            pausesPerSecond.push_back(static_cast<double>(found.count) / seconds);
            longest.push_back(found.longest.count());
        }
        Report report(options);
        report.add(
            {"machine", "pauses above 0.2 ms in a second of one processor", "", pausesPerSecond});
        report.add({"machine", "the longest of them", "ms", longest});
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "machine-pauses: " << error.what() << '\n';
        return 1;
    }
}
