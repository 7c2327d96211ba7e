#include "shortcuts/HotkeyIDCounter.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillon::test {

TEST(HotkeyIDCounter, counts_up_from_one) {
    HotkeyIDCounter counter;
    EXPECT_EQ(counter.next(), 1U);
    EXPECT_EQ(counter.take(), 1U);
    EXPECT_EQ(counter.take(), 2U);
    EXPECT_EQ(counter.next(), 3U);
}

TEST(HotkeyIDCounterDeathTest, ends_the_program_instead_of_starting_over) {
    constexpr auto last = std::numeric_limits<std::uint32_t>::max();
    HotkeyIDCounter counter(last - 1);
    EXPECT_EQ(counter.take(), last - 1);
    EXPECT_DEATH(counter.take(), "the hot-key ids are used up");
}

} // namespace quillon::test
