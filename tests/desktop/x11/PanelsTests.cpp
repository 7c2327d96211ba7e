#include "desktop/x11/Panels.h"

#include "desktop/x11/Client.h"
#include "desktop/x11/ServerAlone.h"
#include "desktop/x11/XRectangles.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillon::test {
namespace {

using desktop::Panels;

constexpr xcb_rectangle_t kStrip{0, 0, 640, 30};
constexpr xcb_rectangle_t kWholeScreen{0, 0, 640, 480};

/// A desktop whose window manager is the test itself.
class PanelsTest : public testing::Test {
protected:
    PanelsTest() {
        const std::uint32_t properties = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(client.connection(), client.root(), XCB_CW_EVENT_MASK,
                                     &properties);
    }

    xcb_window_t makeWindow(const xcb_rectangle_t& frame, const char* type) {
        const xcb_window_t window = xcb_generate_id(client.connection());
        xcb_create_window(client.connection(), XCB_COPY_FROM_PARENT, window, client.root(), frame.x,
                          frame.y, frame.width, frame.height, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                          XCB_COPY_FROM_PARENT, 0, nullptr);
        const auto value = desktop::atomNamed(client.connection(), type);
        xcb_change_property(client.connection(), XCB_PROP_MODE_REPLACE, window,
                            desktop::atomNamed(client.connection(), "_NET_WM_WINDOW_TYPE"),
                            XCB_ATOM_ATOM, 32, 1, &value);
        xcb_map_window(client.connection(), window);
        return window;
    }
    xcb_window_t makePanel(const xcb_rectangle_t& frame) {
        return makeWindow(frame, "_NET_WM_WINDOW_TYPE_DOCK");
    }
    xcb_window_t makeOther(const xcb_rectangle_t& frame) {
        return makeWindow(frame, "_NET_WM_WINDOW_TYPE_NORMAL");
    }
    void listFromBelow(const std::vector<xcb_window_t>& windows) {
        xcb_change_property(client.connection(), XCB_PROP_MODE_REPLACE, client.root(),
                            desktop::atomNamed(client.connection(), "_NET_CLIENT_LIST_STACKING"),
                            XCB_ATOM_WINDOW, 32, static_cast<std::uint32_t>(windows.size()),
                            windows.data());
    }
    bool isInSight(const xcb_rectangle_t& frame) {
        const auto inSight = panels.inSight();
        return inSight.size() == 1 && desktop::equal(inSight.front(), frame);
    }

    VirtualDesktop server{serverAlone};
    Client client{server.display()};
    Panels panels{client.connection()};
};

} // namespace

TEST_F(PanelsTest, a_panel_is_told_from_other_windows) {
    EXPECT_TRUE(panels.inSight().empty());
    const auto other = makeOther({100, 100, 200, 100});
    listFromBelow({makePanel(kStrip), other});
    EXPECT_TRUE(isInSight(kStrip));
}

TEST_F(PanelsTest, one_below_a_window_that_fills_the_screen_is_out_of_sight) {
    const auto panel = makePanel(kStrip);
    const auto film = makeOther(kWholeScreen);
    listFromBelow({film, panel});
    EXPECT_TRUE(isInSight(kStrip));
    listFromBelow({panel, film});
    EXPECT_TRUE(panels.inSight().empty());
}

TEST_F(PanelsTest, a_window_over_a_part_of_it_leaves_it_in_sight) {
    const auto panel = makePanel(kStrip);
    listFromBelow({panel, makeOther({0, 0, 639, 480})});
    EXPECT_TRUE(isInSight(kStrip));
}

TEST_F(PanelsTest, a_window_that_is_hidden_neither_shows_nor_covers_anything) {
    const auto panel = makePanel(kStrip);
    const auto film = makeOther(kWholeScreen);
    listFromBelow({panel, film});
    xcb_unmap_window(client.connection(), film);
    EXPECT_TRUE(isInSight(kStrip));
    xcb_unmap_window(client.connection(), panel);
    EXPECT_TRUE(panels.inSight().empty());
}

TEST_F(PanelsTest, a_window_that_has_gone_is_passed_over) {
    const auto panel = makePanel(kStrip);
    const auto gone = makeOther(kWholeScreen);
    listFromBelow({panel, gone});
    xcb_destroy_window(client.connection(), gone);
    EXPECT_TRUE(isInSight(kStrip));
}

TEST_F(PanelsTest, a_change_of_the_list_is_told_and_of_nothing_else) {
    int changes = 0;
    const auto subscription = panels.changed.sink([&] { ++changes; });
    const auto hand = [this](const auto& event) { panels.handleEvent(event); };
    const auto panel = makePanel(kStrip);
    client.pump(hand);
    EXPECT_EQ(changes, 0);
    listFromBelow({panel});
    EXPECT_TRUE(client.pumpUntil([&] { return changes == 1; }, hand));
}

} // namespace quillon::test
