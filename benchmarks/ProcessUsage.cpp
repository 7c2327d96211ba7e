#include "benchmarks/ProcessUsage.h"

#include <time.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>

namespace quillon::bench {

namespace {

std::string folderOf(pid_t process) {
    return "/proc/" + std::to_string(process);
}

std::string contentsOf(const std::string& file) {
    std::ifstream stream(file);
    if (!stream) {
        throw std::runtime_error(file + " cannot be read");
    }
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// The sum of the numbers after `name` on all lines that begin with it: "Name:  12 kB".
long sumOf(const std::string& name, const std::string& text) {
    long sum = 0;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(name + ":")) {
            sum += std::stol(line.substr(name.size() + 1));
        }
    }
    return sum;
}

/// User and system time are the 14th and 15th field; the second is in parentheses and may hold
/// anything.
long ticksOf(const std::string& statistics) {
    std::istringstream fields(statistics.substr(statistics.rfind(')') + 1));
    std::string skipped;
    for (int field = 3; field < 14; ++field) {
        fields >> skipped;
    }
    long user = 0;
    long system = 0;
    fields >> user >> system;
    return user + system;
}

/// The letter of its state. It follows the name, which stands in parentheses and may hold anything.
char stateOf(pid_t process) {
    const std::string statistics = contentsOf(folderOf(process) + "/stat");
    return statistics.at(statistics.rfind(')') + 2);
}

double secondsOf(pid_t process) {
    clockid_t clock{};
    timespec time{};
    if (clock_getcpuclockid(process, &clock) != 0 || clock_gettime(clock, &time) != 0) {
        throw std::runtime_error("the time of a process cannot be read");
    }
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

} // namespace

ProcessUsage ProcessUsage::of(pid_t process) {
    // One that has ended would seem to rest until its parent asks for it.
    if (stateOf(process) == 'Z') {
        throw std::runtime_error("the process has ended");
    }
    ProcessUsage usage;
    for (const auto& thread : std::filesystem::directory_iterator(folderOf(process) + "/task")) {
        const std::string status = contentsOf(thread.path() / "status");
        const long switches =
            sumOf("voluntary_ctxt_switches", status) + sumOf("nonvoluntary_ctxt_switches", status);
        usage.contextSwitches += switches;
        usage.contextSwitchesByThread[thread.path().filename()] = switches;
    }
    usage.processorTicks = ticksOf(contentsOf(folderOf(process) + "/stat"));
    usage.processorSeconds = secondsOf(process);
    return usage;
}

ProcessUsage ProcessUsage::since(const ProcessUsage& earlier) const {
    ProcessUsage used;
    for (const auto& [thread, switches] : contextSwitchesByThread) {
        const auto before = earlier.contextSwitchesByThread.find(thread);
        const bool isNew = before == earlier.contextSwitchesByThread.end();
        used.contextSwitchesByThread[thread] = switches - (isNew ? 0 : before->second);
        used.contextSwitches += used.contextSwitchesByThread[thread];
    }
    used.processorTicks = processorTicks - earlier.processorTicks;
    used.processorSeconds = processorSeconds - earlier.processorSeconds;
    return used;
}

bool isAsleep(pid_t process) {
    return stateOf(process) == 'S';
}

ProcessMemory ProcessMemory::of(pid_t process) {
    const std::string pages = contentsOf(folderOf(process) + "/smaps_rollup");
    return {sumOf("Rss", pages), sumOf("Private_Clean", pages) + sumOf("Private_Dirty", pages),
            sumOf("Anonymous", pages)};
}

} // namespace quillon::bench
