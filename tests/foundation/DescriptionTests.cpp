#include "foundation/Description.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillon::test {

TEST(Description, a_whole_number_has_one_digit_after_the_point) {
    EXPECT_EQ(description(2.0), "2.0");
    EXPECT_EQ(description(0.0), "0.0");
    EXPECT_EQ(description(-1080.0), "-1080.0");
    EXPECT_EQ(description(100000.0), "100000.0");
}

TEST(Description, a_fraction_has_the_digits_that_tell_it_from_its_neighbours) {
    EXPECT_EQ(description(1.25), "1.25");
    EXPECT_EQ(description(0.1), "0.1");
    EXPECT_EQ(description(100.0 / 3), "33.333333333333336");
}

TEST(Description, very_small_and_very_large_numbers_have_an_exponent) {
    EXPECT_EQ(description(0.00001), "1e-05");
    EXPECT_EQ(description(1.5e300), "1.5e+300");
}

TEST(Description, what_is_no_number_has_a_name) {
    EXPECT_EQ(description(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(description(std::numeric_limits<double>::quiet_NaN()), "nan");
}

TEST(Description, a_rectangle_is_its_origin_and_its_size) {
    EXPECT_EQ(description(CGRect{-10, 20.5, 1920, 1080}), "(-10.0, 20.5, 1920.0, 1080.0)");
}

} // namespace quillon::test
