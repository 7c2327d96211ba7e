#include "toolbar/HueSaturationPicker.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace quillon::test {
namespace {

constexpr CGFloat kSide = 150;

struct Wheel : testing::Test {
    double hue = 0;
    double saturation = 1;
    HueSaturationPicker picker{Binding<double>::to(hue), Binding<double>::to(saturation), 1};
};

TEST_F(Wheel, hue_is_zero_at_the_top_and_grows_clockwise) {
    picker.dragChanged({75, 0}, kSide);
    EXPECT_DOUBLE_EQ(hue, 0);
    picker.dragChanged({150, 75}, kSide);
    EXPECT_DOUBLE_EQ(hue, 0.25);
    picker.dragChanged({75, 150}, kSide);
    EXPECT_DOUBLE_EQ(hue, 0.5);
    picker.dragChanged({0, 75}, kSide);
    EXPECT_DOUBLE_EQ(hue, 0.75);
}

TEST_F(Wheel, a_click_at_the_centre_is_grey_with_the_hue_of_the_right) {
    picker.dragChanged({75, 75}, kSide);
    EXPECT_EQ(saturation, 0);
    EXPECT_DOUBLE_EQ(hue, 0.25);
    EXPECT_EQ(picker.markerOffset(kSide).width, 0);
    EXPECT_EQ(picker.markerOffset(kSide).height, 0);
}

TEST_F(Wheel, a_drag_far_outside_keeps_full_saturation_and_follows_the_angle) {
    picker.dragChanged({75 + 4000, 75}, kSide);
    EXPECT_EQ(saturation, 1);
    EXPECT_DOUBLE_EQ(hue, 0.25);
    picker.dragChanged({75, 75 + 9000}, kSide);
    EXPECT_EQ(saturation, 1);
    EXPECT_DOUBLE_EQ(hue, 0.5);
}

TEST_F(Wheel, the_hue_stays_below_one_all_the_way_round) {
    for (int degree = 0; degree < 360; ++degree) {
        const double angle = degree * std::numbers::pi / 180;
        picker.dragChanged({75 + 60 * std::cos(angle), 75 + 60 * std::sin(angle)}, kSide);
        EXPECT_GE(hue, 0) << degree;
        EXPECT_LT(hue, 1) << degree;
    }
}

TEST_F(Wheel, the_marker_stands_where_the_pointer_chose) {
    for (const CGPoint place : {CGPoint{100, 40}, CGPoint{20, 90}, CGPoint{75, 30}}) {
        picker.dragChanged(place, kSide);
        EXPECT_NEAR(picker.markerOffset(kSide).width, place.x - 75, 1e-9);
        EXPECT_NEAR(picker.markerOffset(kSide).height, place.y - 75, 1e-9);
    }
}

TEST_F(Wheel, it_is_as_large_as_its_view_allows) {
    EXPECT_EQ(HueSaturationPicker::side({248, 150}), 150);
    EXPECT_EQ(HueSaturationPicker::side({100, 150}), 100);
}

TEST_F(Wheel, the_painted_hues_run_in_thirteen_stops_and_end_where_they_began) {
    picker.setBrightness(0.5);
    const auto stops = picker.angularStops();
    ASSERT_EQ(stops.size(), 13U);
    EXPECT_EQ(stops.front(), Color::fromHSB(0, 1, 0.5));
    EXPECT_EQ(stops[3], Color::fromHSB(0.25, 1, 0.5));
    EXPECT_EQ(stops.back(), stops.front());
    EXPECT_EQ(HueSaturationPicker::angularMaskLineWidth(kSide), 75);
}

TEST_F(Wheel, the_hidden_layer_runs_from_grey_to_the_chosen_hue) {
    hue = 0.5;
    EXPECT_EQ(picker.radialLayer().center, Color::fromHSB(0.5, 0, 1));
    EXPECT_EQ(picker.radialLayer().edge, Color::fromHSB(0.5, 1, 1));
}

TEST_F(Wheel, it_remembers_the_size_in_which_it_appeared) {
    EXPECT_EQ(picker.pickerSize(), (CGSize{0, 0}));
    picker.appeared({248, 150});
    EXPECT_EQ(picker.pickerSize(), (CGSize{248, 150}));
}

} // namespace
} // namespace quillon::test
