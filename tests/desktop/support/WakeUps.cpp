#include "desktop/support/WakeUps.h"

#include <filesystem>
#include <fstream>
#include <string>

namespace quillon::test {

long wakeUpsOf(pid_t process) {
    long sum = 0;
    const std::string tasks = "/proc/" + std::to_string(process) + "/task";
    for (const auto& thread : std::filesystem::directory_iterator(tasks)) {
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

} // namespace quillon::test
