#include "foundation/UUID.h"

#include <gtest/gtest.h>

#include <set>

namespace quillon::test {

TEST(UUID, the_text_form_is_canonical_and_in_capitals) {
    const auto uuid = UUID::fromString("0f1e2d3c-4b5a-4678-9abc-def012345678");
    ASSERT_TRUE(uuid);
    EXPECT_EQ(uuid->uuidString(), "0F1E2D3C-4B5A-4678-9ABC-DEF012345678");
}

TEST(UUID, either_letter_case_reads_as_the_same) {
    EXPECT_EQ(UUID::fromString("0F1E2D3C-4B5A-4678-9ABC-DEF012345678"),
              UUID::fromString("0f1e2d3c-4B5a-4678-9aBc-def012345678"));
}

TEST(UUID, any_other_text_is_none) {
    for (const auto* text :
         {"", "0F1E2D3C4B5A46789ABCDEF012345678", "0F1E2D3C-4B5A-4678-9ABC-DEF01234567",
          "0F1E2D3C-4B5A-4678-9ABC-DEF0123456789", "0F1E2D3C-4B5A-4678-9ABC-DEF01234567G",
          "0F1E2D3C+4B5A-4678-9ABC-DEF012345678", "-F1E2D3C-4B5A-4678-9ABC-DEF012345678",
          "{F1E2D3C-4B5A-4678-9ABC-DEF01234567}", "0F1E2D3C-4B5A-4678-9ABC-DEF0 1234567"}) {
        EXPECT_EQ(UUID::fromString(text), std::nullopt) << text;
    }
}

TEST(UUID, a_random_one_is_of_version_4_and_comes_back_from_its_text) {
    for (int round = 0; round < 100; ++round) {
        const auto uuid = UUID::random();
        const auto text = uuid.uuidString();
        EXPECT_EQ(text[14], '4');
        EXPECT_NE(std::string("89AB").find(text[19]), std::string::npos) << text;
        EXPECT_EQ(UUID::fromString(text), uuid);
    }
}

TEST(UUID, random_ones_differ) {
    std::set<UUID> seen;
    for (int round = 0; round < 10000; ++round) {
        seen.insert(UUID::random());
    }
    EXPECT_EQ(seen.size(), 10000U);
}

} // namespace quillon::test
