#include "desktop/qt/QtFileWatch.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <array>
#include <unistd.h>

namespace quillon::test {

using namespace desktop;

namespace {

/// A pipe with a byte to be read from it.
struct Pipe {
    Pipe() {
        EXPECT_EQ(pipe(ends.data()), 0);
        EXPECT_EQ(write(ends[1], "x", 1), 1);
    }
    ~Pipe() {
        close(ends[0]);
        close(ends[1]);
    }

    void empty() const {
        char byte = 0;
        EXPECT_EQ(read(ends[0], &byte, 1), 1);
    }

    std::array<int, 2> ends{};
};

void turn() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

TEST(QtFileWatch, tells_of_a_file_that_can_be_read_until_it_is_empty) {
    const Pipe pipe;
    int calls = 0;
    const Cancellable watch = qtFileWatch()(pipe.ends[0], [&] {
        ++calls;
        pipe.empty();
    });

    turn();
    EXPECT_EQ(calls, 1);
    turn();
    EXPECT_EQ(calls, 1);
}

TEST(QtFileWatch, a_watch_that_was_dropped_is_silent) {
    const Pipe pipe;
    int calls = 0;
    Cancellable watch = qtFileWatch()(pipe.ends[0], [&] { ++calls; });

    watch.cancel();
    turn();

    EXPECT_EQ(calls, 0);
}

TEST(QtFileWatch, a_watch_may_be_dropped_from_inside_of_its_call) {
    const Pipe pipe;
    int calls = 0;
    Cancellable watch;
    watch = qtFileWatch()(pipe.ends[0], [&] {
        ++calls;
        watch.cancel();
    });

    turn();
    turn();

    EXPECT_EQ(calls, 1);
}

} // namespace quillon::test
