#include "desktop/qt/QtMainQueue.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>

#include <memory>
#include <string>

namespace quillon::test {

using namespace desktop;

namespace {

/// Delays are short, and only their order and lower bound are looked at.
constexpr double moment = 0.004;

class Loop {
public:
    void end() { m_loop.quit(); }
    void run() { m_loop.exec(); }

private:
    QEventLoop m_loop;
};

} // namespace

TEST(QtMainQueue, work_runs_in_a_later_turn_and_not_inside_the_call) {
    QtMainQueue queue;
    bool ran = false;
    queue.async([&] { ran = true; });
    queue.asyncAfter(0, [&] { ran = true; });
    queue.asyncAfter(-1, [&] { ran = true; });
    EXPECT_FALSE(ran);
    QCoreApplication::processEvents();
    EXPECT_TRUE(ran);
}

TEST(QtMainQueue, work_runs_in_the_order_in_which_it_came) {
    QtMainQueue queue;
    std::string order;
    queue.async([&] { order += 'a'; });
    queue.asyncAfter(0, [&] { order += 'b'; });
    queue.async([&] { order += 'c'; });
    queue.asyncAfter(-5, [&] { order += 'd'; });
    QCoreApplication::processEvents();
    EXPECT_EQ(order, "abcd");
}

TEST(QtMainQueue, two_queues_keep_one_order) {
    QtMainQueue first;
    QtMainQueue second;
    std::string order;
    first.async([&] { order += 'a'; });
    second.async([&] { order += 'b'; });
    first.async([&] { order += 'c'; });
    QCoreApplication::processEvents();
    EXPECT_EQ(order, "abc");
}

TEST(QtMainQueue, work_handed_in_by_work_comes_after_what_was_there) {
    QtMainQueue queue;
    std::string order;
    Loop loop;
    queue.async([&] {
        order += 'a';
        queue.async([&] {
            order += 'c';
            loop.end();
        });
    });
    queue.async([&] { order += 'b'; });
    loop.run();
    EXPECT_EQ(order, "abc");
}

TEST(QtMainQueue, earlier_deadlines_come_first_whatever_the_order_of_arrival) {
    QtMainQueue queue;
    std::string order;
    Loop loop;
    queue.asyncAfter(3 * moment, [&] {
        order += 'c';
        loop.end();
    });
    queue.asyncAfter(moment, [&] { order += 'a'; });
    queue.asyncAfter(2 * moment, [&] { order += 'b'; });
    loop.run();
    EXPECT_EQ(order, "abc");
}

TEST(QtMainQueue, work_never_runs_before_its_delay_is_over) {
    QtMainQueue queue;
    Loop loop;
    const double start = queue.now();
    double end = start;
    queue.asyncAfter(moment + 0.0003, [&] {
        end = queue.now();
        loop.end();
    });
    loop.run();
    EXPECT_GE(end - start, moment + 0.0003);
}

TEST(QtMainQueue, a_deadline_that_falls_due_inside_other_work_is_kept) {
    QtMainQueue queue;
    Loop loop;
    int runs = 0;
    queue.asyncAfter(moment, [&] {
        queue.asyncAfter(moment, [&] {
            ++runs;
            loop.end();
        });
        ++runs;
    });
    loop.run();
    EXPECT_EQ(runs, 2);
}

TEST(QtMainQueue, pending_work_is_dropped_with_the_queue) {
    auto queue = std::make_unique<QtMainQueue>();
    const auto witness = std::make_shared<int>();
    bool ran = false;
    queue->async([&ran, witness] { ran = true; });
    queue->asyncAfter(moment, [&ran, witness] { ran = true; });
    queue.reset();
    EXPECT_EQ(witness.use_count(), 1);
    QCoreApplication::processEvents();
    EXPECT_FALSE(ran);
}

TEST(QtMainQueue, its_clock_never_runs_backward) {
    const QtMainQueue queue;
    const double first = queue.now();
    EXPECT_GE(queue.now(), first);
}

TEST(QtMainQueue, cleared_it_drops_what_is_pending_and_takes_new_work) {
    QtMainQueue queue;
    std::string ran;
    const auto held = std::make_shared<int>();
    queue.async([&, held] { ran += '1'; });
    queue.asyncAfter(moment, [&, held] { ran += '2'; });
    queue.clear();
    EXPECT_EQ(held.use_count(), 1);
    Loop loop;
    queue.asyncAfter(2 * moment, [&] {
        ran += '3';
        loop.end();
    });
    loop.run();
    EXPECT_EQ(ran, "3");
}

} // namespace quillon::test
