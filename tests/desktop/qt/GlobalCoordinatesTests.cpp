#include "desktop/qt/GlobalCoordinates.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace desktop;

namespace {

const QRectF primaryAtOrigin(0, 0, 1600, 900);
const QRectF primaryElsewhere(1280, 200, 1600, 900);

} // namespace

TEST(GlobalCoordinates, the_bottom_left_corner_of_the_primary_screen_is_the_origin) {
    EXPECT_EQ(globalFromDesktop(QPointF(0, 900), primaryAtOrigin), (CGPoint{0, 0}));
    EXPECT_EQ(globalFromDesktop(QPointF(1280, 1100), primaryElsewhere), (CGPoint{0, 0}));
}

TEST(GlobalCoordinates, y_grows_upward) {
    EXPECT_EQ(globalFromDesktop(QPointF(10, 20), primaryAtOrigin), (CGPoint{10, 880}));
    EXPECT_EQ(globalFromDesktop(QPointF(0, 1000), primaryAtOrigin), (CGPoint{0, -100}));
}

TEST(GlobalCoordinates, the_origin_of_a_rectangle_is_its_lower_left_corner) {
    EXPECT_EQ(globalFromDesktop(QRectF(100, 50, 300, 200), primaryAtOrigin),
              (CGRect{100, 650, 300, 200}));
}

TEST(GlobalCoordinates, the_primary_screen_itself_starts_at_the_origin) {
    EXPECT_EQ(globalFromDesktop(primaryElsewhere, primaryElsewhere), (CGRect{0, 0, 1600, 900}));
}

TEST(GlobalCoordinates, a_screen_left_of_the_primary_one_has_a_negative_x) {
    EXPECT_EQ(globalFromDesktop(QRectF(0, 0, 1280, 800), primaryElsewhere),
              (CGRect{-1280, 300, 1280, 800}));
}

TEST(GlobalCoordinates, the_way_back_gives_what_came_in) {
    const QRectF rect(-30.5, 12.25, 640, 480);
    EXPECT_EQ(desktopFromGlobal(globalFromDesktop(rect, primaryElsewhere), primaryElsewhere), rect);
    const QPointF point(7.5, -3);
    EXPECT_EQ(desktopFromGlobal(globalFromDesktop(point, primaryElsewhere), primaryElsewhere),
              point);
}

TEST(GlobalCoordinates, device_pixels_are_scaled_from_the_origin_of_their_screen) {
    EXPECT_EQ(desktopFromDevicePixels({300, 100}, {0, 0}, 2), QPointF(150, 50));
    EXPECT_EQ(desktopFromDevicePixels({3840 + 300, 100}, {3840, 40}, 1.5), QPointF(3840 + 200, 80));
    EXPECT_EQ(devicePixelsFromDesktop({3840 + 200, 80}, {3840, 40}, 1.5), QPointF(3840 + 300, 100));
}

} // namespace quillon::test
