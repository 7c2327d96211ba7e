#include "support/FakeHost.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillon::test {

namespace {

class Delegate : public ApplicationDelegate {
public:
    void applicationDidFinishLaunching() override {}
    void applicationWillTerminate() override {}
    bool perform(std::string_view selector) override {
        asked.emplace_back(selector);
        return selector == known;
    }

    std::string known = "known:";
    std::vector<std::string> asked;
};

} // namespace

TEST(Application, an_action_goes_to_the_delegate_first) {
    FakeApplication application;
    Delegate delegate;
    application.setDelegate(&delegate);
    EXPECT_TRUE(application.sendAction("known:"));
    EXPECT_FALSE(application.sendAction("unknown:"));
    EXPECT_EQ(delegate.asked, (std::vector<std::string>{"known:", "unknown:"}));
    EXPECT_EQ(application.terminations, 0);
}

TEST(Application, the_application_itself_ends_the_program_unless_the_delegate_takes_the_action) {
    FakeApplication application;
    Delegate delegate;
    EXPECT_TRUE(application.sendAction("terminate:"));
    application.setDelegate(&delegate);
    EXPECT_TRUE(application.sendAction("terminate:"));
    EXPECT_EQ(application.terminations, 2);
    delegate.known = "terminate:";
    EXPECT_TRUE(application.sendAction("terminate:"));
    EXPECT_EQ(application.terminations, 2);
}

TEST(Application, without_a_delegate_an_unknown_action_is_taken_by_nobody) {
    FakeApplication application;
    EXPECT_FALSE(application.sendAction("known:"));
}

} // namespace quillon::test
