#include "benchmarks/Peers.h"

#include <unistd.h>

#include <cstdlib>
#include <exception>
#include <iostream>
#include <sstream>

namespace quillon::bench {

bool isInstalled(const std::string& name) {
    const char* path = std::getenv("PATH");
    std::istringstream folders(path ? path : "");
    for (std::string folder; std::getline(folders, folder, ':');) {
        if (access((folder + "/" + name).c_str(), X_OK) == 0) {
            return true;
        }
    }
    return false;
}

void measurePeer(const std::string& name, const Round& round,
                 const std::function<void()>& measure) {
    if (!isInstalled(name)) {
        return;
    }
    try {
        measure();
    } catch (const std::exception& error) {
        // What a program said itself may go on over many lines.
        std::string reason;
        std::istringstream lines(error.what());
        std::getline(lines, reason);
        std::cerr << "- " << round.subject << ": without " << name << " in round " << round.number
                  << ", for " << reason << std::endl;
    }
}

} // namespace quillon::bench
