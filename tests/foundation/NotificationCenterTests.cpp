#include "foundation/NotificationCenter.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillon::test {

TEST(NotificationCenter, observers_of_a_name_hear_it_at_once_and_in_order) {
    NotificationCenter center;
    std::string heard;
    const auto a = center.addObserver("name", [&](const Notification&) { heard += 'a'; });
    const auto b = center.addObserver("name", [&](const Notification&) { heard += 'b'; });
    const auto c = center.addObserver("other", [&](const Notification&) { heard += 'c'; });
    center.post("name");
    EXPECT_EQ(heard, "ab");
}

TEST(NotificationCenter, a_notification_that_nobody_observes_is_lost) {
    NotificationCenter center;
    center.post("name");
    int heard = 0;
    const auto observer = center.addObserver("name", [&](const Notification&) { ++heard; });
    EXPECT_EQ(heard, 0);
}

TEST(NotificationCenter, it_carries_its_name_its_object_and_its_payload) {
    NotificationCenter center;
    Notification heard;
    const auto observer =
        center.addObserver("name", [&](const Notification& notification) { heard = notification; });
    center.post("name", &center, {{"isEnabled", true}});
    EXPECT_EQ(heard.name, "name");
    EXPECT_EQ(heard.object, &center);
    EXPECT_EQ(heard.userInfo, (NotificationUserInfo{{"isEnabled", true}}));
    center.post("name");
    EXPECT_EQ(heard.object, nullptr);
    EXPECT_TRUE(heard.userInfo.empty());
}

TEST(NotificationCenter, an_observer_that_was_dropped_hears_nothing) {
    NotificationCenter center;
    int heard = 0;
    auto observer = center.addObserver("name", [&](const Notification&) { ++heard; });
    observer.cancel();
    center.post("name");
    EXPECT_EQ(heard, 0);
}

TEST(NotificationCenter, an_observer_may_add_observers_and_post_during_a_delivery) {
    NotificationCenter center;
    std::vector<std::string> heard;
    std::vector<Cancellable> added;
    const auto first = center.addObserver("first", [&](const Notification&) {
        heard.emplace_back("first");
        for (int number = 0; number < 20; ++number) {
            added.push_back(
                center.addObserver("name " + std::to_string(number),
                                   [&](const Notification& it) { heard.push_back(it.name); }));
        }
        center.post("name 7");
    });
    center.post("first");
    EXPECT_EQ(heard, (std::vector<std::string>{"first", "name 7"}));
}

} // namespace quillon::test
