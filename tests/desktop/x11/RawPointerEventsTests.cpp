#include "desktop/x11/RawPointerEvents.h"

#include "desktop/support/InputDriver.h"
#include "desktop/support/ProbeWindow.h"
#include "desktop/x11/Client.h"
#include "desktop/x11/ServerAlone.h"
#include "desktop/x11/WindowShape.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace quillon::test {
namespace {

using desktop::ClientIds;
using desktop::RawPointerEvent;
using desktop::RawPointerEvents;
using Events = std::vector<RawPointerEvent>;

constexpr RawPointerEvent kMotion{RawPointerEvent::Kind::motion};
constexpr RawPointerEvent kDrag{RawPointerEvent::Kind::drag};

constexpr RawPointerEvent press(std::uint8_t button) {
    return {RawPointerEvent::Kind::press, button};
}

class RawPointerEventsTest : public testing::Test {
protected:
    explicit RawPointerEventsTest(const VirtualDesktop::Options& options = serverAlone)
        : server(options) {}

    /// Everything that the hand has done so far.
    Events take() {
        // An answer of the server comes after all events before it.
        raw->pointer();
        Events events;
        raw->take(events);
        return events;
    }

    bool isOver(const ClientIds& client) {
        raw->pointer();
        return raw->wasOver(client);
    }

    xcb_window_t makeWindow(const Client& owner, xcb_rectangle_t place) {
        const xcb_window_t window = xcb_generate_id(owner.connection());
        const std::uint32_t bypassesManager = 1;
        xcb_create_window(owner.connection(), XCB_COPY_FROM_PARENT, window, owner.root(), place.x,
                          place.y, place.width, place.height, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                          XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &bypassesManager);
        xcb_map_window(owner.connection(), window);
        owner.sync();
        return window;
    }

    VirtualDesktop server;
    InputDriver input{server.connection()};
    std::unique_ptr<RawPointerEvents> raw = RawPointerEvents::listen(server.display());
};

class RawPointerEventsUnderAManager : public RawPointerEventsTest {
protected:
    RawPointerEventsUnderAManager()
        : RawPointerEventsTest({.width = 640, .height = 480, .hasCompositor = false}) {}
};

} // namespace

TEST(RawPointerEvents, a_display_that_does_not_answer_cannot_be_listened_to) {
    EXPECT_EQ(RawPointerEvents::listen(":9999"), nullptr);
}

TEST_F(RawPointerEventsTest, a_burst_of_motions_is_one_and_the_place_is_the_newest) {
    for (int x = 10; x <= 400; ++x) {
        input.moveTo({x, 200});
    }
    EXPECT_EQ(take(), Events{kMotion});
    EXPECT_EQ(raw->pointer().x, 400);
    EXPECT_EQ(raw->pointer().y, 200);
    EXPECT_EQ(take(), Events{});
}

TEST_F(RawPointerEventsTest, presses_keep_their_place_between_motions) {
    input.moveTo({10, 10});
    input.moveTo({20, 20});
    input.press(1);
    input.release(1);
    input.press(3);
    input.release(3);
    input.moveTo({30, 30});
    EXPECT_EQ(take(), (Events{kMotion, press(1), press(3), kMotion}));
}

TEST_F(RawPointerEventsTest, a_turn_of_a_wheel_is_no_press) {
    for (const int button : {4, 5, 6, 7}) {
        input.press(button);
        input.release(button);
    }
    EXPECT_EQ(take(), Events{});
    input.press(2);
    input.release(2);
    EXPECT_EQ(take(), Events{press(2)});
}

TEST_F(RawPointerEventsTest, a_left_handed_mapping_swaps_the_buttons) {
    const std::uint8_t leftHanded[] = {3, 2, 1, 4, 5, 6, 7, 8, 9, 10};
    const Client user(server.display());
    const auto cookie = xcb_get_pointer_mapping(user.connection());
    const XOwned<xcb_get_pointer_mapping_reply_t> present(
        xcb_get_pointer_mapping_reply(user.connection(), cookie, nullptr));
    xcb_set_pointer_mapping(user.connection(), present->map_len, leftHanded);
    user.sync();
    input.press(1);
    input.release(1);
    EXPECT_EQ(take(), Events{press(3)});
}

TEST_F(RawPointerEventsTest, a_held_button_is_seen_until_it_is_up) {
    input.press(1);
    EXPECT_TRUE(raw->pointer().isButtonHeld);
    input.moveTo({30, 30});
    EXPECT_TRUE(raw->pointer().isButtonHeld);
    input.release(1);
    EXPECT_FALSE(raw->pointer().isButtonHeld);
}

TEST_F(RawPointerEventsTest, a_drag_that_has_ended_within_its_burst_is_no_plain_motion) {
    input.moveTo({10, 10});
    input.press(1);
    input.moveTo({20, 20});
    input.moveTo({30, 30});
    input.release(1);
    EXPECT_EQ(take(), (Events{kMotion, press(1), kDrag}));
    input.moveTo({40, 40});
    EXPECT_EQ(take(), Events{kMotion});
}

TEST_F(RawPointerEventsTest, a_drag_goes_on_until_the_last_button_is_up) {
    input.press(1);
    input.press(3);
    input.release(1);
    input.moveTo({20, 20});
    EXPECT_EQ(take(), (Events{press(1), press(3), kDrag}));
    input.release(3);
    input.moveTo({30, 30});
    EXPECT_EQ(take(), Events{kMotion});
}

TEST_F(RawPointerEventsTest, neither_a_wheel_nor_a_side_button_makes_a_drag) {
    constexpr int kWheelUp = 4;
    constexpr int kBack = 8;
    for (const int button : {kWheelUp, kBack}) {
        input.press(button);
        take();
        input.moveTo({10 * button, 10});
        EXPECT_EQ(take(), Events{kMotion});
        input.release(button);
    }
}

TEST_F(RawPointerEventsTest, a_release_and_a_press_that_are_yet_to_be_taken_leave_a_drag) {
    input.press(1);
    input.release(1);
    // The server says that the button is up, and of the press which follows it knows nothing yet.
    raw->pointer();
    input.press(1);
    input.moveTo({20, 20});
    EXPECT_EQ(take(), (Events{press(1), press(1), kDrag}));
    input.moveTo({30, 30});
    EXPECT_EQ(take(), Events{kDrag});
}

TEST_F(RawPointerEventsTest, a_pointer_that_is_warped_by_a_program_tells_nothing) {
    input.warpTo({123, 45});
    EXPECT_EQ(take(), Events{});
    // Where it has come to is known with the next press or move of a hand.
    EXPECT_EQ(raw->pointer().x, 123);
    EXPECT_EQ(raw->pointer().y, 45);
}

TEST_F(RawPointerEventsTest, events_are_heard_while_another_program_holds_the_pointer) {
    const Client menu(server.display());
    const auto request =
        xcb_grab_pointer(menu.connection(), 0, menu.root(), XCB_EVENT_MASK_BUTTON_PRESS,
                         XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, 0);
    const XOwned<xcb_grab_pointer_reply_t> reply(
        xcb_grab_pointer_reply(menu.connection(), request, nullptr));
    ASSERT_EQ(reply->status, XCB_GRAB_STATUS_SUCCESS);
    input.moveTo({50, 50});
    EXPECT_EQ(take(), Events{kMotion});
}

TEST_F(RawPointerEventsTest, a_press_goes_to_the_client_whose_window_lies_on_top) {
    const Client own(server.display());
    const Client other(server.display());
    const ClientIds ids(own.connection());
    input.moveTo({50, 50});
    EXPECT_FALSE(isOver(ids)) << "the root window is nobody's";
    makeWindow(other, {0, 0, 200, 200});
    EXPECT_FALSE(isOver(ids));
    const xcb_window_t window = makeWindow(own, {0, 0, 100, 100});
    EXPECT_TRUE(isOver(ids));
    EXPECT_FALSE(isOver(ClientIds(other.connection())));
    input.moveTo({150, 150});
    EXPECT_FALSE(isOver(ids));
    input.moveTo({50, 50});
    xcb_unmap_window(own.connection(), window);
    own.sync();
    EXPECT_FALSE(isOver(ids));
}

TEST_F(RawPointerEventsTest, what_another_connection_lays_into_a_window_belongs_to_it) {
    const Client own(server.display());
    const Client second(server.display());
    const xcb_window_t window = makeWindow(own, {0, 0, 100, 100});
    const xcb_window_t inside = makeWindow(second, {0, 0, 100, 100});
    xcb_reparent_window(second.connection(), inside, window, 0, 0);
    second.sync();
    input.moveTo({50, 50});
    EXPECT_TRUE(isOver(ClientIds(own.connection())));
    EXPECT_EQ(raw->pointer().window, inside);
}

TEST_F(RawPointerEventsTest, a_way_down_that_has_changed_is_found_anew) {
    const Client own(server.display());
    const auto makeChild = [&](xcb_window_t parent, xcb_rectangle_t place) {
        const xcb_window_t child = makeWindow(own, place);
        xcb_reparent_window(own.connection(), child, parent, place.x, place.y);
        own.sync();
        return child;
    };
    const xcb_window_t window = makeWindow(own, {0, 0, 200, 200});
    const xcb_window_t left = makeChild(window, {0, 0, 100, 200});
    const xcb_window_t leaf = makeChild(left, {0, 0, 50, 50});
    const xcb_window_t right = makeChild(window, {100, 0, 100, 200});
    for (int round = 0; round < 2; ++round) {
        input.moveTo({10, 10});
        EXPECT_EQ(raw->pointer().window, leaf);
        EXPECT_EQ(raw->pointer().window, leaf);
        input.moveTo({150, 150});
        EXPECT_EQ(raw->pointer().window, right);
        EXPECT_EQ(raw->pointer().x, 150);
        input.moveTo({300, 300});
        EXPECT_EQ(raw->pointer().window, desktop::noWindow);
    }
    input.moveTo({10, 10});
    EXPECT_EQ(raw->pointer().window, leaf);
    xcb_destroy_window(own.connection(), left);
    own.sync();
    EXPECT_EQ(raw->pointer().window, window);
}

TEST_F(RawPointerEventsTest, a_window_that_lets_the_pointer_through_gets_no_press) {
    const Client own(server.display());
    const ClientIds ids(own.connection());
    const xcb_window_t window = makeWindow(own, {0, 0, 100, 100});
    input.moveTo({50, 50});
    ASSERT_TRUE(isOver(ids));
    desktop::setInputRegion(own.connection(), window, desktop::InputRegion::empty);
    own.sync();
    EXPECT_FALSE(isOver(ids));
    desktop::setInputRegion(own.connection(), window, desktop::InputRegion::window);
    own.sync();
    EXPECT_TRUE(isOver(ids));
}

TEST_F(RawPointerEventsUnderAManager, a_window_is_found_in_the_frame_that_the_manager_gives_it) {
    ProbeWindow window(server.display(), {100, 100, 200, 200}, {200, 0, 0});
    const Client other(server.display());
    input.moveTo({200, 200});
    EXPECT_EQ(raw->pointer().window, window.id());
    EXPECT_TRUE(isOver(ClientIds(window.connection())));
    EXPECT_FALSE(isOver(ClientIds(other.connection())));
}

TEST_F(RawPointerEventsTest, the_end_of_the_server_is_noticed) {
    EXPECT_TRUE(raw->isAlive());
    server.stopServer();
    Events events;
    raw->take(events);
    EXPECT_FALSE(raw->isAlive());
    EXPECT_EQ(events, Events{});
}

} // namespace quillon::test
