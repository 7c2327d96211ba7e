#include "desktop/qt/OwnPresses.h"

#include <gtest/gtest.h>

#include <QMouseEvent>
#include <QTest>
#include <QWidget>

#include <vector>

namespace quillon::test {

using namespace desktop;

namespace {

using Heard = std::vector<NSEvent>;

/// A window whose child leaves every press to it, and it to nobody.
class OwnPressesTest : public testing::Test {
protected:
    OwnPressesTest() {
        m_window.resize(100, 100);
        m_child.resize(100, 100);
        m_window.show();
    }

    void click(Qt::MouseButton button) {
        QTest::mouseClick(m_window.windowHandle(), button, {}, {10, 10});
    }

    QWidget m_window;
    QWidget m_child{&m_window};
};

} // namespace

TEST_F(OwnPressesTest, each_press_is_heard_once_however_many_widgets_leave_it_alone) {
    Heard heard;
    const OwnPresses presses([&](const NSEvent& event) { heard.push_back(event); });
    click(Qt::LeftButton);
    click(Qt::RightButton);
    click(Qt::MiddleButton);
    EXPECT_EQ(heard, (Heard{{NSEventType::leftMouseDown},
                            {NSEventType::rightMouseDown},
                            {NSEventType::otherMouseDown}}));
}

TEST_F(OwnPressesTest, the_second_press_of_a_double_click_is_a_press) {
    Heard heard;
    const OwnPresses presses([&](const NSEvent& event) { heard.push_back(event); });
    QTest::mouseDClick(m_window.windowHandle(), Qt::LeftButton, {}, {10, 10});
    EXPECT_EQ(heard, (Heard{{NSEventType::leftMouseDown}, {NSEventType::leftMouseDown}}));
}

TEST_F(OwnPressesTest, nothing_is_heard_after_its_end) {
    Heard heard;
    {
        const OwnPresses presses([&](const NSEvent& event) { heard.push_back(event); });
    }
    click(Qt::LeftButton);
    EXPECT_EQ(heard, Heard{});
}

} // namespace quillon::test
