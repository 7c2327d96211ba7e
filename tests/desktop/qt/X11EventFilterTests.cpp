#include "desktop/qt/X11EventFilter.h"

#include <gtest/gtest.h>

#include <QByteArray>

#include <string>

namespace quillon::test {

using namespace desktop;

namespace {

bool deliver(X11EventFilter& filter, std::uint8_t type) {
    xcb_generic_event_t event{};
    event.response_type = type;
    qintptr result = 0;
    return filter.nativeEventFilter("xcb_generic_event_t", &event, &result);
}

} // namespace

TEST(X11EventFilter, handlers_are_asked_in_order_until_one_takes_the_event) {
    X11EventFilter filter;
    std::string asked;
    const auto first = filter.addHandler([&](const auto&) {
        asked += '1';
        return false;
    });
    const auto second = filter.addHandler([&](const xcb_generic_event_t& event) {
        asked += '2';
        return event.response_type == XCB_KEY_PRESS;
    });
    const auto third = filter.addHandler([&](const auto&) {
        asked += '3';
        return false;
    });
    EXPECT_TRUE(deliver(filter, XCB_KEY_PRESS));
    EXPECT_EQ(asked, "12");
    EXPECT_FALSE(deliver(filter, XCB_KEY_RELEASE));
    EXPECT_EQ(asked, "12123");
}

TEST(X11EventFilter, a_handler_that_was_dropped_is_asked_no_more) {
    X11EventFilter filter;
    int asked = 0;
    auto handler = filter.addHandler([&](const auto&) {
        ++asked;
        return true;
    });
    EXPECT_TRUE(deliver(filter, XCB_EXPOSE));
    handler.cancel();
    EXPECT_FALSE(deliver(filter, XCB_EXPOSE));
    EXPECT_EQ(asked, 1);
}

TEST(X11EventFilter, a_handler_may_drop_itself_and_the_next_one) {
    X11EventFilter filter;
    Cancellable first;
    Cancellable second;
    int asked = 0;
    first = filter.addHandler([&](const auto&) {
        first.cancel();
        second.cancel();
        return false;
    });
    second = filter.addHandler([&](const auto&) {
        ++asked;
        return false;
    });
    EXPECT_FALSE(deliver(filter, XCB_EXPOSE));
    EXPECT_EQ(asked, 0);
}

TEST(X11EventFilter, a_subscription_may_outlive_the_filter) {
    Cancellable handler;
    {
        X11EventFilter filter;
        handler = filter.addHandler([](const auto&) { return false; });
    }
    handler.cancel();
    EXPECT_FALSE(handler);
}

TEST(X11EventFilter, events_of_another_window_system_are_left_alone) {
    X11EventFilter filter;
    const auto handler = filter.addHandler([](const auto&) { return true; });
    int notAnEvent = 0;
    qintptr result = 0;
    EXPECT_FALSE(filter.nativeEventFilter("windows_generic_MSG", &notAnEvent, &result));
}

} // namespace quillon::test
