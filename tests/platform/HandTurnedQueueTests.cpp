#include "support/HandTurnedQueue.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace quillon::test {

namespace {

class HandTurnedQueueTest : public testing::Test {
protected:
    MainQueue::Work note(char letter) {
        return [this, letter] { ran += letter; };
    }

    HandTurnedQueue queue;
    std::string ran;
};

} // namespace

TEST_F(HandTurnedQueueTest, nothing_runs_inside_the_call_itself) {
    queue.async(note('a'));
    EXPECT_EQ(ran, "");
    queue.run();
    EXPECT_EQ(ran, "a");
}

TEST_F(HandTurnedQueueTest, work_runs_in_the_order_in_which_it_was_handed_in) {
    queue.async(note('a'));
    queue.asyncAfter(0, note('b'));
    queue.asyncAfter(-1, note('c'));
    queue.async(note('d'));
    queue.run();
    EXPECT_EQ(ran, "abcd");
}

TEST_F(HandTurnedQueueTest, what_work_hands_in_waits_for_a_later_turn) {
    queue.async([this] {
        ran += 'a';
        queue.async(note('c'));
    });
    queue.async(note('b'));
    queue.turn();
    EXPECT_EQ(ran, "ab");
    queue.turn();
    EXPECT_EQ(ran, "abc");
}

TEST_F(HandTurnedQueueTest, delayed_work_runs_by_its_deadline_at_its_own_time) {
    const double start = queue.now();
    double at = 0;
    queue.asyncAfter(5, note('c'));
    queue.asyncAfter(2, [&] {
        ran += 'a';
        at = queue.now();
        queue.asyncAfter(1, note('b'));
    });
    queue.advance(1.9);
    EXPECT_EQ(ran, "");
    queue.advance(3.1);
    EXPECT_EQ(ran, "abc");
    EXPECT_EQ(at, start + 2);
    EXPECT_EQ(queue.now(), start + 5);
    EXPECT_TRUE(queue.isIdle());
}

TEST(HandTurnedQueue, work_that_is_pending_when_the_queue_ends_is_dropped) {
    const auto held = std::make_shared<int>(0);
    {
        HandTurnedQueue queue;
        queue.async([held] { ++*held; });
        EXPECT_EQ(held.use_count(), 2);
    }
    EXPECT_EQ(held.use_count(), 1);
    EXPECT_EQ(*held, 0);
}

} // namespace quillon::test
