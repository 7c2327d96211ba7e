#include "foundation/NumberText.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillon::test {

TEST(NumberText, a_number_is_cut_off_toward_zero) {
    EXPECT_EQ(numberText(99.999), "99");
    EXPECT_EQ(numberText(-99.999), "-99");
    EXPECT_EQ(numberText(-0.5), "0");
}

TEST(NumberText, a_part_is_cut_off_as_percent) {
    EXPECT_EQ(percentText(0.999), "99%");
    EXPECT_EQ(percentText(1), "100%");
    // In binary this part is a little less than it looks.
    EXPECT_EQ(percentText(0.29), "28%");
}

TEST(NumberText, a_length_says_that_it_is_in_points) {
    EXPECT_EQ(pointsText(4.9), "4pt");
}

TEST(NumberTextDeath, a_number_that_is_not_finite_cannot_be_shown) {
    EXPECT_DEATH(numberText(std::numeric_limits<double>::quiet_NaN()), "no integer part");
}

} // namespace quillon::test
