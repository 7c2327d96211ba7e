#include "platform/DeviceDescription.h"

#include <gtest/gtest.h>

namespace quillon::test {

TEST(DeviceDescription, an_integer_in_range_converts) {
    EXPECT_EQ(toUInt32(std::int64_t{0}), 0U);
    EXPECT_EQ(toUInt32(std::int64_t{4294967295}), 4294967295U);
}

TEST(DeviceDescription, an_integer_out_of_range_does_not_convert) {
    EXPECT_EQ(toUInt32(std::int64_t{-1}), std::nullopt);
    EXPECT_EQ(toUInt32(std::int64_t{4294967296}), std::nullopt);
}

TEST(DeviceDescription, a_real_number_converts_when_it_is_whole) {
    EXPECT_EQ(toUInt32(69.0), 69U);
    EXPECT_EQ(toUInt32(4294967295.0), 4294967295U);
    EXPECT_EQ(toUInt32(69.5), std::nullopt);
    EXPECT_EQ(toUInt32(-1.0), std::nullopt);
    EXPECT_EQ(toUInt32(4294967296.0), std::nullopt);
}

TEST(DeviceDescription, a_text_does_not_convert) {
    EXPECT_EQ(toUInt32(std::string("69")), std::nullopt);
}

} // namespace quillon::test
