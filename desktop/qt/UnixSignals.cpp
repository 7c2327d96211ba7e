#include "desktop/qt/UnixSignals.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace quillon::desktop {

namespace {

std::atomic<int> pipeForHandler = -1;
static_assert(std::atomic<int>::is_always_lock_free, "the handler may not take a lock");

extern "C" void noteSignal(int) {
    const int present = errno;
    const char byte = 0;
    // A full pipe already says what there is to say.
    [[maybe_unused]] const auto written = write(pipeForHandler, &byte, 1);
    errno = present;
}

} // namespace

UnixSignals::UnixSignals(std::function<void()> asked) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return; // The signals keep their effect of ending the program at once.
    }
    m_readEnd = ends[0];
    m_writeEnd = ends[1];
    pipeForHandler = m_writeEnd;

    m_notifier = std::make_unique<QSocketNotifier>(m_readEnd, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [fd = m_readEnd, asked = std::move(asked)] {
                         std::array<char, 16> bytes{};
                         while (read(fd, bytes.data(), bytes.size()) > 0) {
                         }
                         asked();
                     });

    hear(SIGTERM);
    hear(SIGINT);
    hear(SIGHUP);
}

UnixSignals::~UnixSignals() {
    for (const Replaced& replaced : m_replaced) {
        sigaction(replaced.signal, &replaced.action, nullptr);
    }
    pipeForHandler = -1;
    m_notifier.reset();
    if (m_readEnd >= 0) {
        close(m_readEnd);
        close(m_writeEnd);
    }
}

void UnixSignals::hear(int signal) {
    struct sigaction present {};
    sigaction(signal, nullptr, &present);
    if (signal == SIGHUP && present.sa_handler == SIG_IGN) {
        return;
    }
    struct sigaction action {};
    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    if (sigaction(signal, &action, nullptr) == 0) {
        m_replaced.push_back({signal, present});
    }
}

} // namespace quillon::desktop
