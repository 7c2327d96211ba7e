#include "desktop/x11/PointerSelection.h"

#include "desktop/support/InputDriver.h"
#include "desktop/x11/Client.h"
#include "desktop/x11/PointerMotion.h"
#include "desktop/x11/ServerAlone.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillon::test {

using namespace desktop;

namespace {

class PointerSelectionTest : public testing::Test {
protected:
    PointerSelectionTest() {
        input.moveTo({10, 10});
        xcb_input_xi_query_version_unchecked(program.connection(), 2, 2);
        const std::uint32_t bypassesManager = 1;
        xcb_create_window(program.connection(), XCB_COPY_FROM_PARENT, window, program.root(), 0, 0,
                          200, 200, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                          XCB_CW_OVERRIDE_REDIRECT, &bypassesManager);
        xcb_map_window(program.connection(), window);
        const struct {
            xcb_input_event_mask_t head{XCB_INPUT_DEVICE_ALL, 1};
            std::uint32_t events = XCB_INPUT_XI_EVENT_MASK_BUTTON_PRESS |
                                   XCB_INPUT_XI_EVENT_MASK_BUTTON_RELEASE |
                                   XCB_INPUT_XI_EVENT_MASK_MOTION;
        } mask;
        xcb_input_xi_select_events(program.connection(), window, 1, &mask.head);
        program.sync();
    }

    /// Whether each motion that the program was told of came from a single device.
    std::vector<bool> motionsOfADrag() {
        program.sync();
        input.moveTo({20, 20});
        input.press();
        input.moveTo({30, 30});
        input.release();
        std::vector<bool> motions;
        program.sync();
        program.pump([&](const xcb_generic_event_t& event) {
            if (const auto motion = pointerMotion(event, inputExtension(program.connection()))) {
                motions.push_back(motion->isOfDeviceAlone);
            }
        });
        return motions;
    }

    VirtualDesktop server{serverAlone};
    InputDriver input{server.connection()};
    Client program{server.display()};
    xcb_window_t window = xcb_generate_id(program.connection());
};

} // namespace

TEST_F(PointerSelectionTest, a_window_that_asks_for_all_devices_is_told_each_motion_twice) {
    EXPECT_EQ(motionsOfADrag(), (std::vector<bool>{true, false, true, false}));
}

TEST_F(PointerSelectionTest, without_single_devices_each_motion_is_told_once) {
    leaveOutSingleDevices(program.connection(), window);
    EXPECT_EQ(motionsOfADrag(), (std::vector<bool>{false, false}));
}

TEST_F(PointerSelectionTest, a_second_time_changes_nothing) {
    leaveOutSingleDevices(program.connection(), window);
    leaveOutSingleDevices(program.connection(), window);
    EXPECT_EQ(motionsOfADrag(), (std::vector<bool>{false, false}));
}

} // namespace quillon::test
