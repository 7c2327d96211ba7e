#include "foundation/JSON.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace quillon::test {

TEST(JSON, what_is_no_JSON_yields_nothing) {
    for (const auto* text :
         {"", " ", "{", "[1,]", "{\"a\":}", "nul", "'a'", "[1] [2]", "1e999", "\"\xff\"", "NaN"}) {
        EXPECT_EQ(parseJSON(text), std::nullopt) << text;
    }
}

TEST(JSON, members_keep_the_order_in_which_they_were_added) {
    JSON json;
    json["zebra"] = 1;
    json["apple"] = 2;
    EXPECT_EQ(serializeJSON(json), R"({"zebra":1,"apple":2})");
    EXPECT_EQ(serializeJSON(*parseJSON(R"({ "b" : 1, "a" : [ 2 ] })")), R"({"b":1,"a":[2]})");
}

TEST(JSON, a_number_that_is_not_finite_is_not_written_wherever_it_stands) {
    for (const double number :
         {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(serializeJSON(JSON(number)), std::nullopt);
        EXPECT_EQ(serializeJSON(JSON{{"a", JSON::array({1, JSON{{"b", number}}})}}), std::nullopt);
    }
}

TEST(JSON, a_string_that_is_not_UTF_8_is_not_written) {
    EXPECT_EQ(serializeJSON(JSON("\xff")), std::nullopt);
    EXPECT_EQ(serializeJSON(JSON("二")), "\"二\"");
}

TEST(JSON, a_value_is_read_only_in_its_own_type) {
    EXPECT_EQ(jsonNumber(JSON(1.5)), 1.5);
    EXPECT_EQ(jsonNumber(JSON(-2)), -2);
    EXPECT_EQ(jsonNumber(JSON("1")), std::nullopt);
    EXPECT_EQ(jsonNumber(JSON(true)), std::nullopt);
    EXPECT_EQ(jsonBool(JSON(false)), false);
    EXPECT_EQ(jsonBool(JSON(0)), std::nullopt);
    EXPECT_EQ(jsonString(JSON("a")), "a");
    EXPECT_EQ(jsonString(JSON(1)), std::nullopt);
    EXPECT_EQ(jsonString(JSON(nullptr)), std::nullopt);
}

TEST(JSON, a_whole_number_of_32_bits_has_no_sign_and_no_fraction) {
    EXPECT_EQ(jsonUInt32(JSON(0)), 0U);
    EXPECT_EQ(jsonUInt32(JSON(4294967295)), 4294967295U);
    EXPECT_EQ(jsonUInt32(JSON(7.0)), 7U);
    EXPECT_EQ(jsonUInt32(JSON(4294967296)), std::nullopt);
    EXPECT_EQ(jsonUInt32(JSON(-1)), std::nullopt);
    EXPECT_EQ(jsonUInt32(JSON(0.5)), std::nullopt);
    EXPECT_EQ(jsonUInt32(JSON("7")), std::nullopt);
}

TEST(JSON, a_member_that_is_missing_or_null_is_none) {
    const JSON object{{"a", 1}, {"b", nullptr}};
    ASSERT_NE(jsonMember(object, "a"), nullptr);
    EXPECT_EQ(*jsonMember(object, "a"), JSON(1));
    EXPECT_EQ(jsonMember(object, "b"), nullptr);
    EXPECT_EQ(jsonMember(object, "c"), nullptr);
    EXPECT_EQ(jsonMember(JSON(3), "a"), nullptr);
    EXPECT_EQ(jsonMember(JSON::array({1}), "a"), nullptr);
}

} // namespace quillon::test
