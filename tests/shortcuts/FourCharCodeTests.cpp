#include "shortcuts/FourCharCode.h"

#include <gtest/gtest.h>

namespace quillon::test {

TEST(FourCharCode, packs_the_bytes_with_the_first_one_most_significant) {
    EXPECT_EQ(fourCharCodeValue("ORVL"), 0x4F52564CU);
    EXPECT_EQ(fourCharCodeValue("keyb"), 0x6B657962U);
}

TEST(FourCharCode, of_a_shorter_text_is_a_smaller_number) {
    EXPECT_EQ(fourCharCodeValue(""), 0U);
    EXPECT_EQ(fourCharCodeValue("O"), 0x4FU);
    EXPECT_EQ(fourCharCodeValue("OR"), 0x4F52U);
}

TEST(FourCharCode, of_a_longer_text_takes_the_first_four_bytes) {
    EXPECT_EQ(fourCharCodeValue("ORVLX"), fourCharCodeValue("ORVL"));
}

TEST(FourCharCode, counts_bytes_and_not_letters) {
    // The euro sign is three bytes of UTF-8.
    EXPECT_EQ(fourCharCodeValue("\u20AC"), 0xE282ACU);
    EXPECT_EQ(fourCharCodeValue("\u20AC\u20AC"), 0xE282ACE2U);
}

} // namespace quillon::test
