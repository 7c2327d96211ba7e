#include "support/FakeDefaults.h"

#include <gtest/gtest.h>

namespace quillon::test {

TEST(UserDefaults, a_string_is_read_only_from_a_string) {
    FakeDefaults defaults;
    defaults.setString("text", "a");
    defaults.setData("data", Data{"a"});
    defaults.setDouble("number", 1);
    EXPECT_EQ(defaults.string("text"), "a");
    EXPECT_EQ(defaults.string("data"), std::nullopt);
    EXPECT_EQ(defaults.string("number"), std::nullopt);
    EXPECT_EQ(defaults.string("absent"), std::nullopt);
}

TEST(UserDefaults, data_are_read_only_from_data) {
    FakeDefaults defaults;
    defaults.setData("data", Data{"a"});
    defaults.setString("text", "a");
    defaults.setBool("bool", true);
    EXPECT_EQ(defaults.data("data"), Data{"a"});
    EXPECT_EQ(defaults.data("text"), std::nullopt);
    EXPECT_EQ(defaults.data("bool"), std::nullopt);
    EXPECT_EQ(defaults.data("absent"), std::nullopt);
}

} // namespace quillon::test
