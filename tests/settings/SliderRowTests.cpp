#include "foundation/Int.h"
#include "settings/SettingsView.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quillon::test {

namespace {

std::string inFull(double value) {
    return std::to_string(integerPart(value));
}

struct Slider {
    double value = 0;
    SliderRow row{"Slider", Binding<double>::to(value), 0, 10, 2, inFull, 100, 40, {}};

    Slider() = default;
    Slider(double minimum, double maximum, double step) {
        row.minimum = minimum;
        row.maximum = maximum;
        row.step = step;
    }
};

} // namespace

TEST(SliderRow, the_stops_go_from_the_minimum_to_the_maximum) {
    const Slider slider;
    EXPECT_EQ(slider.row.lastStop(), 5);
    EXPECT_EQ(slider.row.valueAt(0), 0);
    EXPECT_EQ(slider.row.valueAt(3), 6);
    EXPECT_EQ(slider.row.valueAt(5), 10);
}

TEST(SliderRow, a_step_that_binary_fractions_cannot_hold_loses_no_stop) {
    const Slider slider(0.1, 0.95, 0.05);
    EXPECT_EQ(slider.row.lastStop(), 17);
    EXPECT_EQ(slider.row.valueAt(17), 0.95);
}

TEST(SliderRow, a_move_writes_the_value_of_the_stop) {
    Slider slider;
    slider.row.moveTo(4);
    EXPECT_EQ(slider.value, 8);
}

TEST(SliderRow, no_move_leaves_the_range) {
    Slider slider;
    slider.row.moveTo(6);
    EXPECT_EQ(slider.value, 10);
    slider.row.moveTo(-1);
    EXPECT_EQ(slider.value, 0);
}

TEST(SliderRow, a_value_outside_of_the_range_is_shown_at_its_end_and_stays_as_it_is) {
    Slider slider;
    slider.value = 300;
    EXPECT_EQ(slider.row.stop(), 5);
    EXPECT_EQ(slider.row.text(), "300");
    EXPECT_EQ(slider.value, 300);
    slider.value = -1;
    EXPECT_EQ(slider.row.stop(), 0);
}

TEST(SliderRow, a_value_between_two_stops_is_shown_at_the_nearer_one_and_stays_as_it_is) {
    Slider slider;
    slider.value = 5.5;
    EXPECT_EQ(slider.row.stop(), 3);
    EXPECT_EQ(slider.value, 5.5);
}

TEST(SliderRow, what_is_no_number_is_shown_at_the_minimum) {
    Slider slider;
    slider.value = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(slider.row.stop(), 0);
    slider.value = std::numeric_limits<double>::infinity();
    EXPECT_EQ(slider.row.stop(), 5);
}

} // namespace quillon::test
