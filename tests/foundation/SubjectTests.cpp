#include "foundation/Subject.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quillon::test {

namespace {

/// Who heard which value, in order.
using Heard = std::vector<std::pair<char, int>>;

class SubjectTest : public testing::Test {
protected:
    auto note(char who) {
        return [this, who](int value) { heard.emplace_back(who, value); };
    }

    Subject<int> subject;
    Heard heard;
};

} // namespace

TEST_F(SubjectTest, subscribers_hear_a_value_in_order_of_subscription) {
    const auto a = subject.sink(note('a'));
    const auto b = subject.sink(note('b'));
    subject.send(1);
    EXPECT_EQ(heard, (Heard{{'a', 1}, {'b', 1}}));
}

TEST_F(SubjectTest, a_subscription_ends_with_its_holder) {
    {
        const auto a = subject.sink(note('a'));
        EXPECT_TRUE(subject.hasSubscribers());
    }
    EXPECT_FALSE(subject.hasSubscribers());
    subject.send(1);
    EXPECT_TRUE(heard.empty());
}

TEST_F(SubjectTest, one_cancelled_during_a_delivery_hears_nothing_more) {
    Cancellable later;
    const auto first = subject.sink([&](int) { later.cancel(); });
    later = subject.sink(note('l'));
    subject.send(1);
    EXPECT_TRUE(heard.empty());
    EXPECT_EQ(subject.subscriberCount(), 1U);
}

TEST_F(SubjectTest, one_may_cancel_itself_during_its_own_delivery) {
    Cancellable self;
    auto witness = std::make_shared<int>(0);
    self = subject.sink([&, witness](int value) {
        self.cancel();
        *witness += value; // What the subscriber holds lives to the end of its call.
    });
    const auto other = subject.sink(note('o'));
    subject.send(1);
    subject.send(2);
    EXPECT_EQ(*witness, 1);
    EXPECT_EQ(witness.use_count(), 1);
    EXPECT_EQ(heard, (Heard{{'o', 1}, {'o', 2}}));
}

TEST_F(SubjectTest, one_that_joins_during_a_delivery_hears_the_next_value) {
    Cancellable joined;
    const auto first = subject.sink([&](int) {
        if (!joined) {
            joined = subject.sink(note('j'));
        }
    });
    subject.send(1);
    EXPECT_TRUE(heard.empty());
    subject.send(2);
    EXPECT_EQ(heard, (Heard{{'j', 2}}));
}

TEST_F(SubjectTest, a_value_sent_during_a_delivery_is_delivered_at_once) {
    const auto a = subject.sink([&](int value) {
        heard.emplace_back('a', value);
        if (value == 1) {
            subject.send(2);
        }
    });
    const auto b = subject.sink(note('b'));
    subject.send(1);
    EXPECT_EQ(heard, (Heard{{'a', 1}, {'a', 2}, {'b', 2}, {'b', 1}}));
}

TEST_F(SubjectTest, the_publisher_may_go_during_a_delivery) {
    std::optional<Subject<int>> brief;
    brief.emplace();
    const auto a = brief->sink([&](int) { brief.reset(); });
    const auto b = brief->sink(note('b'));
    brief->send(1);
    EXPECT_FALSE(brief);
    EXPECT_EQ(heard, (Heard{{'b', 1}}));
}

TEST(Cancellable, to_cancel_after_the_publisher_is_gone_is_safe) {
    Cancellable subscription;
    {
        Subject<> brief;
        subscription = brief.sink([] {});
    }
    EXPECT_TRUE(subscription);
    subscription.cancel();
    EXPECT_FALSE(subscription);
}

TEST(Cancellable, it_cancels_once) {
    int cancelled = 0;
    {
        Cancellable subscription([&] { ++cancelled; });
        subscription.cancel();
        subscription.cancel();
    }
    EXPECT_EQ(cancelled, 1);
}

TEST(Cancellable, one_that_is_moved_hands_its_subscription_on) {
    int cancelled = 0;
    {
        Cancellable first([&] { ++cancelled; });
        const Cancellable second = std::move(first);
        EXPECT_TRUE(second);
        EXPECT_EQ(cancelled, 0);
    }
    EXPECT_EQ(cancelled, 1);
}

TEST(Cancellable, an_assignment_ends_the_former_subscription) {
    std::vector<std::string> cancelled;
    Cancellable subscription([&] { cancelled.emplace_back("former"); });
    subscription = Cancellable([&] { cancelled.emplace_back("later"); });
    EXPECT_EQ(cancelled, std::vector<std::string>{"former"});
}

TEST(Cancellable, one_may_cancel_itself_again_while_it_is_cancelled) {
    int cancelled = 0;
    Cancellable subscription;
    subscription = Cancellable([&] {
        ++cancelled;
        subscription.cancel();
    });
    subscription.cancel();
    EXPECT_EQ(cancelled, 1);
}

} // namespace quillon::test
