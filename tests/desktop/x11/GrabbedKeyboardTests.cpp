#include "desktop/x11/GrabbedKeyboard.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace desktop;

namespace {

constexpr std::uint8_t changesOfFocus[] = {XCB_FOCUS_IN, XCB_FOCUS_OUT};

bool tells(std::uint8_t type, std::uint8_t mode) {
    union {
        xcb_generic_event_t generic;
        xcb_focus_in_event_t focus;
    } event{};
    event.focus.response_type = type;
    event.focus.mode = mode;
    return tellsOfKeyboardGrab(event.generic);
}

} // namespace

TEST(GrabbedKeyboard, is_told_by_a_change_of_focus_with_the_mode_of_a_grab) {
    for (const auto type : changesOfFocus) {
        EXPECT_TRUE(tells(type, XCB_NOTIFY_MODE_GRAB));
        EXPECT_TRUE(tells(type, XCB_NOTIFY_MODE_UNGRAB));
    }
}

TEST(GrabbedKeyboard, is_not_told_by_a_change_that_really_happens) {
    for (const auto type : changesOfFocus) {
        EXPECT_FALSE(tells(type, XCB_NOTIFY_MODE_NORMAL));
        EXPECT_FALSE(tells(type, XCB_NOTIFY_MODE_WHILE_GRABBED));
    }
}

TEST(GrabbedKeyboard, is_not_told_by_any_other_event) {
    EXPECT_FALSE(tells(XCB_ENTER_NOTIFY, XCB_NOTIFY_MODE_GRAB));
    EXPECT_FALSE(tells(XCB_KEY_PRESS, XCB_NOTIFY_MODE_GRAB));
}

} // namespace quillon::test
