#include "foundation/Binding.h"

#include <gtest/gtest.h>

#include <string>

namespace quillon::test {

TEST(Binding, one_to_a_variable_reads_and_writes_it) {
    std::string text = "a";
    const auto binding = Binding<std::string>::to(text);
    EXPECT_EQ(binding.get(), "a");
    binding.set("b");
    EXPECT_EQ(text, "b");
    binding.modify([](std::string& value) { value += "c"; });
    EXPECT_EQ(text, "bc");
}

TEST(Binding, it_holds_no_copy) {
    std::string text = "a";
    const auto binding = Binding<std::string>::to(text);
    text = "changed elsewhere";
    EXPECT_EQ(&binding.get(), &text);
}

} // namespace quillon::test
