#pragma once

#include "desktop/support/Eventually.h"

#include <signal.h>
#include <sys/types.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quillon::test {

/// A program run by a test. What it prints is kept; it ends with the test, whatever happens: first
/// it is asked to, and then made to.
class ChildProcess {
public:
    using Environment = std::map<std::string, std::string>;

    /// Runs `command` with exactly this environment. A pipe end given as `keptDescriptor` stays
    /// open in the child. When this process is killed, the child gets `signalOfOrphan`.
    ChildProcess(const std::vector<std::string>& command, const Environment& environment,
                 int keptDescriptor = -1, int signalOfOrphan = SIGKILL);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    pid_t pid() const { return m_pid; }
    bool isRunning();
    void sendSignal(int signal) const;
    /// The exit status, or 128 + the signal; nothing when it still runs at the end of the bound.
    std::optional<int> waitForExit(std::chrono::milliseconds bound = defaultBound);

    std::string standardOutput() const;
    std::string standardError() const;

private:
    void reap();

    pid_t m_pid = -1;
    std::optional<int> m_status;
    std::string m_outputFile;
    std::string m_errorFile;
};

} // namespace quillon::test
