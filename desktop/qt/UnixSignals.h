#pragma once

#include <QSocketNotifier>

#include <csignal>
#include <functional>
#include <memory>
#include <vector>

namespace quillon::desktop {

/// Turns the signals that ask the program to end into a call from the main loop, for as long as it
/// lives. Only one may stand at a time.
///
/// 1. The signal's handler writes one byte into a pipe, which is all that a handler may safely do.
/// 2. The main loop sees the pipe become readable and calls back.
///
/// SIGTERM and SIGINT are always heard; SIGHUP is left alone where it was ignored at the start, as
/// under nohup.
class UnixSignals {
public:
    explicit UnixSignals(std::function<void()> asked);
    ~UnixSignals();
    UnixSignals(const UnixSignals&) = delete;
    UnixSignals& operator=(const UnixSignals&) = delete;

private:
    struct Replaced {
        int signal;
        struct sigaction action;
    };

    void hear(int signal);

    int m_readEnd = -1;
    int m_writeEnd = -1;
    std::vector<Replaced> m_replaced;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace quillon::desktop
