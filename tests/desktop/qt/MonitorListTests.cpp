#include "desktop/qt/MonitorList.h"

#include <gtest/gtest.h>

#include <string>

namespace quillon::test {

using namespace desktop;

namespace {

using List = MonitorList<EventMonitors::GlobalHandler>;

constexpr NSEvent kMoved{NSEventType::mouseMoved};
constexpr NSEvent kPressed{NSEventType::leftMouseDown};
constexpr std::uint64_t kBoth = NSEventMask::mouseMoved | NSEventMask::leftMouseDown;

constexpr EventMonitorToken token(std::uint64_t number) {
    return EventMonitorToken{number};
}

} // namespace

TEST(MonitorList, a_monitor_hears_what_is_in_its_mask_in_the_order_of_adding) {
    List list;
    std::string heard;
    list.add(token(1), NSEventMask::mouseMoved, [&](const NSEvent&) { heard += '1'; });
    list.add(token(2), kBoth, [&](const NSEvent&) { heard += '2'; });
    list.report(kPressed);
    EXPECT_EQ(heard, "2");
    list.report(kMoved);
    EXPECT_EQ(heard, "212");
}

TEST(MonitorList, a_handler_may_remove_itself_and_others_which_then_hear_nothing) {
    List list;
    std::string heard;
    list.add(token(1), kBoth, [&](const NSEvent&) {
        heard += '1';
        list.remove(token(1));
        list.remove(token(2));
    });
    list.add(token(2), kBoth, [&](const NSEvent&) { heard += '2'; });
    list.report(kMoved);
    EXPECT_EQ(heard, "1");
    EXPECT_TRUE(list.isEmpty());
}

TEST(MonitorList, one_that_is_added_by_a_handler_hears_the_next_event_first) {
    List list;
    int heard = 0;
    list.add(token(1), kBoth,
             [&](const NSEvent&) { list.add(token(2), kBoth, [&](const NSEvent&) { ++heard; }); });
    list.report(kMoved);
    EXPECT_EQ(heard, 0);
    list.report(kMoved);
    EXPECT_EQ(heard, 1);
}

} // namespace quillon::test
