#include "desktop/qt/UnixSignals.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

namespace quillon::test {

using namespace desktop;

namespace {

void turn() {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

class ReplacedAction {
public:
    ReplacedAction(int signal, void (*handler)(int))
        : m_signal(signal) {
        struct sigaction action {};
        action.sa_handler = handler;
        sigaction(signal, &action, &m_before);
    }
    ~ReplacedAction() { sigaction(m_signal, &m_before, nullptr); }
    ReplacedAction(const ReplacedAction&) = delete;

private:
    int m_signal;
    struct sigaction m_before {};
};

void (*handlerOf(int signal))(int) {
    struct sigaction present {};
    sigaction(signal, nullptr, &present);
    return present.sa_handler;
}

} // namespace

TEST(UnixSignals, each_of_the_three_signals_calls_back_from_the_loop) {
    const ReplacedAction hangUp(SIGHUP, SIG_DFL);
    int calls = 0;
    const UnixSignals signals([&] { ++calls; });
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        const int before = calls;
        raise(signal);
        EXPECT_EQ(calls, before) << "inside the handler";
        turn();
        EXPECT_EQ(calls, before + 1);
    }
}

TEST(UnixSignals, a_hang_up_that_was_ignored_stays_ignored) {
    const ReplacedAction hangUp(SIGHUP, SIG_IGN);
    const UnixSignals signals([] {});
    EXPECT_EQ(handlerOf(SIGHUP), SIG_IGN);
}

TEST(UnixSignals, the_signals_get_their_old_effect_back) {
    const ReplacedAction terminate(SIGTERM, SIG_IGN);
    {
        const UnixSignals signals([] {});
        EXPECT_NE(handlerOf(SIGTERM), SIG_IGN);
    }
    EXPECT_EQ(handlerOf(SIGTERM), SIG_IGN);
}

} // namespace quillon::test
