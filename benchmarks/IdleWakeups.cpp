// What a program costs that nobody uses at the moment: how often it wakes up, its time on the
// processor, and its memory.
//
//     idle-wakeups [--seconds 30]

#include "benchmarks/Pens.h"
#include "benchmarks/ProcessUsage.h"
#include "benchmarks/Statistics.h"

#include <exception>
#include <iostream>
#include <thread>

using namespace quillon;
using namespace quillon::bench;

namespace {

/// What follows a start is no idleness.
constexpr std::chrono::seconds kSettling{3};

void measure(const std::string& state, const Pen& pen, int seconds) {
    std::this_thread::sleep_for(kSettling);
    const ProcessUsage before = ProcessUsage::of(pen.process());
    std::this_thread::sleep_for(std::chrono::seconds(seconds));
    const ProcessUsage used = ProcessUsage::of(pen.process()).since(before);
    const ProcessMemory memory = ProcessMemory::of(pen.process());
    const auto megabytes = [](long kilobytes) {
        return fixed(static_cast<double>(kilobytes) / 1024, 1);
    };
    std::cout << row({state, std::to_string(used.contextSwitches),
                      std::to_string(used.processorTicks), megabytes(memory.resident),
                      megabytes(memory.unique)})
              << std::flush;
}

} // namespace

int main(int count, char** arguments) {
    try {
        const int seconds = option({arguments + 1, arguments + count}, "--seconds", 30);
        std::cout << head({"idle for " + std::to_string(seconds) + " s", "wake-ups",
                           "processor ticks", "RSS MB", "USS MB"});
        auto programs = penPrograms();
        // The bare pen knows no tray.
        programs.erase(programs.begin());
        for (const PenProgram& program : programs) {
            test::VirtualDesktop desktop;
            startTray(desktop);
            const auto pen = program.start(desktop);
            measure(program.name + ", tray only", *pen, seconds);
            pen->switchOn();
            measure(program.name + ", drawing on", *pen, seconds);
        }
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "idle-wakeups: " << error.what() << '\n';
        return 1;
    }
}
