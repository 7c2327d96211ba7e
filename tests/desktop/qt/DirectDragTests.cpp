#include "desktop/qt/DirectDrag.h"

#include <gtest/gtest.h>

#include <QMouseEvent>
#include <QPointingDevice>
#include <QWidget>

#include <vector>

namespace quillon::test {

using namespace desktop;

namespace {

constexpr std::uint8_t kExtension = 131;
constexpr std::uint16_t kPointer = 2;
constexpr std::uint16_t kMouse = 9;

/// An event of the server as long as the longest of them, the buttons that are held behind it.
struct MotionEvent {
    xcb_input_motion_event_t motion{};
    std::uint32_t heldButtons = 1U << 1U;

    MotionEvent(xcb_window_t window, QPoint pixel) {
        motion.response_type = XCB_GE_GENERIC;
        motion.extension = kExtension;
        motion.event_type = XCB_INPUT_MOTION;
        motion.deviceid = kPointer;
        motion.sourceid = kMouse;
        motion.event = window;
        motion.event_x = pixel.x() << 16;
        motion.event_y = pixel.y() << 16;
        motion.buttons_len = 1;
    }
};
static_assert(offsetof(MotionEvent, heldButtons) == sizeof(xcb_input_motion_event_t));

class DirectDragTest : public testing::Test {
protected:
    DirectDragTest() {
        widget.winId();
        widget.resize(500, 500);
    }

    MotionEvent motionTo(QPoint pixel) const {
        return {static_cast<xcb_window_t>(widget.internalWinId()), pixel};
    }
    bool takes(MotionEvent event) { return drag.nativeEventFilter({}, &event, nullptr); }
    bool takesEventOfType(std::uint8_t type) {
        xcb_generic_event_t event{};
        event.response_type = type;
        return drag.nativeEventFilter({}, &event, nullptr);
    }
    void deliver(QEvent::Type type, QPointF place = {10, 10},
                 const QPointingDevice* device = QPointingDevice::primaryPointingDevice()) {
        drag.delivered(mouseEvent(type, place, device));
    }
    static QMouseEvent
    mouseEvent(QEvent::Type type, QPointF place,
               const QPointingDevice* device = QPointingDevice::primaryPointingDevice()) {
        return {type, place, place, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier, device};
    }

    QWidget widget;
    std::vector<QPointF> moves;
    DirectDrag drag{widget, kExtension, [this](QPointF place) { moves.push_back(place); }};
};

} // namespace

TEST_F(DirectDragTest, a_motion_after_the_press_goes_straight_to_the_content_and_no_further) {
    deliver(QEvent::MouseButtonPress);
    EXPECT_TRUE(takes(motionTo({20, 30})));
    EXPECT_TRUE(takes(motionTo({21, 31})));
    EXPECT_EQ(moves, (std::vector<QPointF>{{20, 30}, {21, 31}}));
}

TEST_F(DirectDragTest, no_motion_overtakes_the_press) {
    EXPECT_FALSE(takes(motionTo({20, 30})));
    EXPECT_TRUE(moves.empty());
}

TEST_F(DirectDragTest, no_motion_overtakes_a_key) {
    deliver(QEvent::MouseButtonPress);
    EXPECT_FALSE(takesEventOfType(XCB_KEY_PRESS));
    EXPECT_FALSE(takes(motionTo({20, 30})));
    EXPECT_FALSE(takes(motionTo({21, 31})));
    EXPECT_TRUE(moves.empty());

    deliver(QEvent::MouseMove, {20, 30});
    EXPECT_TRUE(takes(motionTo({22, 32})));
}

TEST_F(DirectDragTest, no_motion_overtakes_another_button) {
    deliver(QEvent::MouseButtonPress);
    MotionEvent press = motionTo({20, 30});
    press.motion.event_type = XCB_INPUT_BUTTON_PRESS;
    EXPECT_FALSE(takes(press));
    EXPECT_FALSE(takes(motionTo({21, 31})));
}

TEST_F(DirectDragTest, a_motion_that_the_device_tells_besides_is_dropped) {
    deliver(QEvent::MouseButtonPress);
    MotionEvent ofDevice = motionTo({20, 30});
    ofDevice.motion.deviceid = kMouse;
    EXPECT_TRUE(takes(ofDevice));
    EXPECT_TRUE(moves.empty());
    EXPECT_TRUE(takes(motionTo({20, 30})));
    EXPECT_EQ(moves, (std::vector<QPointF>{{20, 30}}));
}

TEST_F(DirectDragTest, a_motion_in_another_window_is_left_alone) {
    deliver(QEvent::MouseButtonPress);
    MotionEvent elsewhere = motionTo({20, 30});
    ++elsewhere.motion.event;
    EXPECT_FALSE(takes(elsewhere));
    EXPECT_TRUE(moves.empty());
}

TEST_F(DirectDragTest, a_motion_without_the_button_is_no_drag) {
    deliver(QEvent::MouseButtonPress);
    MotionEvent released = motionTo({20, 30});
    released.heldButtons = 0;
    EXPECT_FALSE(takes(released));
    EXPECT_TRUE(moves.empty());
}

TEST_F(DirectDragTest, the_events_of_a_tablet_go_the_toolkits_way) {
    const QPointingDevice stylus("stylus", 77, QInputDevice::DeviceType::Stylus,
                                 QPointingDevice::PointerType::Pen,
                                 QInputDevice::Capability::Position, 1, 1);
    deliver(QEvent::MouseButtonPress, {10, 10}, &stylus);
    EXPECT_FALSE(takes(motionTo({20, 30})));
}

TEST_F(DirectDragTest, the_motion_that_the_toolkit_makes_up_before_the_release_is_told_apart) {
    deliver(QEvent::MouseButtonPress);
    EXPECT_FALSE(drag.isMadeUp(mouseEvent(QEvent::MouseMove, {10, 10})));
    takes(motionTo({20, 30}));
    EXPECT_TRUE(drag.isMadeUp(mouseEvent(QEvent::MouseMove, {20, 30})));
    EXPECT_FALSE(drag.isMadeUp(mouseEvent(QEvent::MouseMove, {20, 31})));

    deliver(QEvent::MouseMove, {20, 31});
    EXPECT_FALSE(drag.isMadeUp(mouseEvent(QEvent::MouseMove, {20, 30})));
}

TEST_F(DirectDragTest, a_place_to_the_left_of_the_window_is_the_pixel_that_the_toolkit_names) {
    deliver(QEvent::MouseButtonPress);
    MotionEvent between = motionTo({0, 30});
    between.motion.event_x = -(3 << 16) - (1 << 14);
    takes(between);
    EXPECT_EQ(moves, (std::vector<QPointF>{{-3, 30}}));
    EXPECT_TRUE(drag.isMadeUp(mouseEvent(QEvent::MouseMove, {-3, 30})));
}

TEST_F(DirectDragTest, nothing_is_taken_once_the_drag_has_ended) {
    deliver(QEvent::MouseButtonPress);
    drag.end();
    EXPECT_FALSE(takes(motionTo({20, 30})));
    EXPECT_TRUE(moves.empty());
}

} // namespace quillon::test
