#include "desktop/support/WakeUps.h"

#include <sys/syscall.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace quillon::test {

namespace {

std::filesystem::directory_iterator threadsOf(pid_t process) {
    return std::filesystem::directory_iterator("/proc/" + std::to_string(process) + "/task");
}

/// The number of the system call in which a thread waits, and what it was given; nothing while the
/// thread runs.
std::vector<unsigned long> pendingCall(const std::filesystem::path& thread) {
    std::ifstream file(thread / "syscall");
    std::string line;
    std::getline(file, line);
    std::istringstream fields(line);
    std::vector<unsigned long> call;
    for (std::string field; fields >> field && field != "running";) {
        call.push_back(std::stoul(field, nullptr, 0));
    }
    return call;
}

bool waitsForEvents(const std::vector<unsigned long>& call) {
    if (call.size() < 5) {
        return false;
    }
    switch (call[0]) {
    case SYS_poll:
        // A number of milliseconds, below zero for ever.
        return static_cast<int>(call[3]) < 0;
    case SYS_ppoll:
        // The address of a time, if there is one.
        return call[3] == 0;
    case SYS_futex:
        return call[4] == 0;
    default:
        return false;
    }
}

} // namespace

long wakeUpsOf(pid_t process) {
    long sum = 0;
    for (const auto& thread : threadsOf(process)) {
        std::ifstream status(thread.path() / "status");
        const std::string name = "voluntary_ctxt_switches:";
        for (std::string line; std::getline(status, line);) {
            if (line.starts_with(name)) {
                sum += std::stol(line.substr(name.size()));
            }
        }
    }
    return sum;
}

bool hasNothingDue(pid_t process) {
    for (const auto& thread : threadsOf(process)) {
        if (!waitsForEvents(pendingCall(thread.path()))) {
            return false;
        }
    }
    return true;
}

} // namespace quillon::test
