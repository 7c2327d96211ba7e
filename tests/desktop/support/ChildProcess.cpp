#include "desktop/support/ChildProcess.h"

#include <fcntl.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace quillon::test {

namespace {

constexpr std::chrono::seconds kPatience{1};

std::string temporaryFile() {
    std::string name = std::filesystem::temp_directory_path() / "quillon-test-XXXXXX";
    const int descriptor = mkstemp(name.data());
    if (descriptor < 0) {
        throw std::runtime_error("no temporary file could be made");
    }
    close(descriptor);
    return name;
}

std::string contentsOf(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void redirect(const std::string& file, int descriptor, int flags) {
    const int opened = open(file.c_str(), flags);
    dup2(opened, descriptor);
    close(opened);
}

} // namespace

ChildProcess::ChildProcess(const std::vector<std::string>& command, const Environment& environment,
                           int keptDescriptor, int signalOfOrphan)
    : m_outputFile(temporaryFile())
    , m_errorFile(temporaryFile()) {
    std::vector<std::string> settings;
    for (const auto& [name, value] : environment) {
        settings.push_back(name + "=" + value);
    }
    std::vector<char*> arguments;
    for (const auto& argument : command) {
        arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    std::vector<char*> variables;
    for (auto& setting : settings) {
        variables.push_back(setting.data());
    }
    variables.push_back(nullptr);

    m_pid = fork();
    if (m_pid != 0) {
        return;
    }
    prctl(PR_SET_PDEATHSIG, signalOfOrphan);
    redirect("/dev/null", STDIN_FILENO, O_RDONLY);
    redirect(m_outputFile, STDOUT_FILENO, O_WRONLY | O_APPEND);
    redirect(m_errorFile, STDERR_FILENO, O_WRONLY | O_APPEND);
    if (keptDescriptor >= 0) {
        fcntl(keptDescriptor, F_SETFD, 0);
    }
    execvpe(arguments.front(), arguments.data(), variables.data());
    _exit(127);
}

ChildProcess::~ChildProcess() {
    // Who is asked takes along what it left in the file system, as a server its socket.
    if (isRunning()) {
        sendSignal(SIGTERM);
        waitForExit(kPatience);
    }
    if (isRunning()) {
        sendSignal(SIGKILL);
        waitForExit();
    }
    std::filesystem::remove(m_outputFile);
    std::filesystem::remove(m_errorFile);
}

bool ChildProcess::isRunning() {
    reap();
    return !m_status;
}

void ChildProcess::sendSignal(int signal) const {
    kill(m_pid, signal);
}

std::optional<int> ChildProcess::waitForExit(std::chrono::milliseconds bound) {
    eventually([this] { return !isRunning(); }, bound);
    return m_status;
}

std::string ChildProcess::standardOutput() const {
    return contentsOf(m_outputFile);
}

std::string ChildProcess::standardError() const {
    return contentsOf(m_errorFile);
}

void ChildProcess::reap() {
    int status = 0;
    if (!m_status && waitpid(m_pid, &status, WNOHANG) == m_pid) {
        m_status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }
}

} // namespace quillon::test
