#include "foundation/Int.h"

#include <gtest/gtest.h>

namespace quillon::test {

TEST(Int, a_counter_goes_up_by_one) {
    Int counter = 41;
    increment(counter);
    EXPECT_EQ(counter, 42);
}

TEST(IntDeathTest, a_counter_at_its_end_ends_the_program) {
    Int counter = std::numeric_limits<Int>::max();
    EXPECT_DEATH(increment(counter), "ran out of numbers");
}

TEST(Int, the_integer_part_is_toward_zero) {
    EXPECT_EQ(integerPart(2879.9), 2879);
    EXPECT_EQ(integerPart(-2879.9), -2879);
    EXPECT_EQ(integerPart(0), 0);
}

TEST(Int, the_ends_of_the_range_belong_to_it) {
    EXPECT_EQ(integerPart(-9223372036854775808.0), std::numeric_limits<Int>::min());
    EXPECT_EQ(integerPart(9223372036854774784.0), 9223372036854774784);
}

TEST(IntDeathTest, a_number_out_of_range_ends_the_program) {
    EXPECT_DEATH(integerPart(9223372036854775808.0), "out of the range");
    EXPECT_DEATH(integerPart(std::numeric_limits<double>::infinity()), "out of the range");
    EXPECT_DEATH(integerPart(std::numeric_limits<double>::quiet_NaN()), "out of the range");
}

} // namespace quillon::test
