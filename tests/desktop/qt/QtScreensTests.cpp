#include "desktop/qt/QtScreens.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>

namespace quillon::test {

using namespace desktop;

namespace {

std::optional<QRect> noWindow() {
    return std::nullopt;
}

} // namespace

TEST(QtScreens, the_primary_screen_comes_first_and_carries_the_origin) {
    const QtScreens screens(noWindow);
    const auto all = screens.screens();
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all[0].frame, (CGRect{0, 0, 1600, 900}));
    EXPECT_EQ(all[0].localizedName, "Left");
    EXPECT_EQ(all[0].backingScaleFactor, 1);
    // Its top edge lies 300 above that of the first, so its lower edge is at 900 + 300 - 800.
    EXPECT_EQ(all[1].frame, (CGRect{1600, 400, 1280, 800}));
    EXPECT_EQ(all[1].localizedName, "Right");
}

TEST(QtScreens, a_screen_tells_the_number_of_its_display) {
    const QtScreens screens(noWindow, [](const std::string& name) {
        return name == "Right" ? std::optional<std::uint32_t>(71) : std::nullopt;
    });
    const auto all = screens.screens();
    ASSERT_EQ(all.size(), 2U);
    EXPECT_TRUE(all[0].deviceDescription.empty());
    EXPECT_EQ(all[1].deviceDescription, (DeviceDescription{{"NSScreenNumber", std::int64_t{71}}}));
}

TEST(QtScreens, without_a_window_with_the_keyboard_the_primary_screen_is_the_main_one) {
    EXPECT_EQ(QtScreens(noWindow).mainScreen()->localizedName, "Left");
}

TEST(QtScreens, the_main_screen_is_the_one_with_the_window_that_has_the_keyboard) {
    const QtScreens screens([] { return QRect(1700, 0, 300, 200); });
    EXPECT_EQ(screens.mainScreen()->localizedName, "Right");
}

TEST(QtScreens, a_window_on_two_screens_belongs_to_the_one_with_most_of_it) {
    const QtScreens mostlyLeft([] { return QRect(1500, 0, 150, 200); });
    EXPECT_EQ(mostlyLeft.mainScreen()->localizedName, "Left");
    const QtScreens mostlyRight([] { return QRect(1500, 0, 250, 200); });
    EXPECT_EQ(mostlyRight.mainScreen()->localizedName, "Right");
}

TEST(QtScreens, a_window_off_every_screen_leaves_the_primary_one) {
    const QtScreens screens([] { return QRect(-5000, -5000, 10, 10); });
    EXPECT_EQ(screens.mainScreen()->localizedName, "Left");
}

TEST(QtScreens, changes_of_one_turn_are_told_once_and_in_a_later_turn) {
    QtScreens screens(noWindow);
    int told = 0;
    screens.setChangeHandler([&] { ++told; });
    QScreen* screen = QGuiApplication::primaryScreen();
    Q_EMIT screen->geometryChanged(screen->geometry());
    Q_EMIT screen->logicalDotsPerInchChanged(96);
    Q_EMIT qGuiApp->primaryScreenChanged(screen);
    EXPECT_EQ(told, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(told, 1);
    Q_EMIT screen->geometryChanged(screen->geometry());
    QCoreApplication::processEvents();
    EXPECT_EQ(told, 2);
}

TEST(QtScreens, a_device_pixel_has_its_global_place_on_every_screen) {
    const QtScreens screens(noWindow);
    EXPECT_EQ(screens.globalFromDevicePixel({0, 0}), (CGPoint{0, 900}));
    EXPECT_EQ(screens.globalFromDevicePixel({1599, 899}), (CGPoint{1599, 1}));
    EXPECT_EQ(screens.globalFromDevicePixel({1600, -300}), (CGPoint{1600, 1200}));
}

} // namespace quillon::test
