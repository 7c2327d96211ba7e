// How long the program takes from its start to the moment when its shortcuts are live.
//
//     start-time [--starts 20]

#include "bench/Statistics.h"

#include "desktop/support/Program.h"
#include "desktop/support/VirtualDesktop.h"

#include <chrono>
#include <exception>
#include <iostream>
#include <stdexcept>

using namespace quillon;
using namespace quillon::bench;

namespace {

double timeStart(test::VirtualDesktop& desktop) {
    const auto start = std::chrono::steady_clock::now();
    test::Program program(desktop);
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    if (!program.isReady() || program.terminate() != 0) {
        throw std::runtime_error("the program did not start and end well");
    }
    return time.count();
}

} // namespace

int main(int count, char** arguments) {
    try {
        const int starts = option({arguments + 1, arguments + count}, "--starts", 20);
        test::VirtualDesktop desktop;
        timeStart(desktop);
        Samples times;
        for (int index = 0; index < starts; ++index) {
            times.add(timeStart(desktop));
        }
        std::cout << head({"start → shortcuts live", "starts", "p50 ms", "worst ms"})
                  << row({"quillon-mark", std::to_string(starts), fixed(times.percentile(50), 0),
                          fixed(times.percentile(100), 0)});
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "start-time: " << error.what() << '\n';
        return 1;
    }
}
