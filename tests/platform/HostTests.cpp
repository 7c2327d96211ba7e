#include "support/FakeHost.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace quillon::test {

namespace {

std::vector<std::string>& record() {
    static std::vector<std::string> steps;
    return steps;
}

struct First {
    First() { record().emplace_back("first made"); }
    ~First() { record().emplace_back("first gone"); }

    static First& shared() {
        return Host::current().shared<First>([] { return std::make_shared<First>(); });
    }
};

/// A service that asks for another while it is made.
struct Second {
    Second() {
        First::shared();
        record().emplace_back("second made");
    }
    ~Second() {
        // The one that it uses, and the host, are still there.
        First::shared();
        Host::current().userDefaults().setBool("second", true);
        record().emplace_back("second gone");
    }

    static Second& shared() {
        return Host::current().shared<Second>([] { return std::make_shared<Second>(); });
    }
};

class HostTest : public testing::Test {
protected:
    HostTest() { record().clear(); }
};

using Steps = std::vector<std::string>;

} // namespace

TEST_F(HostTest, a_shared_instance_is_made_on_first_use_and_only_once) {
    const FakeHost host;
    EXPECT_TRUE(record().empty());
    EXPECT_EQ(&First::shared(), &First::shared());
    EXPECT_EQ(record(), Steps{"first made"});
}

TEST_F(HostTest, shared_instances_go_in_the_reverse_order_of_their_making) {
    {
        const FakeHost host;
        Second::shared();
        EXPECT_EQ(record(), (Steps{"first made", "second made"}));
        record().clear();
    }
    EXPECT_EQ(record(), (Steps{"second gone", "first gone"}));
}

TEST_F(HostTest, a_fresh_host_starts_from_nothing) {
    {
        const FakeHost host;
        First::shared();
    }
    record().clear();
    const FakeHost host;
    First::shared();
    EXPECT_EQ(record(), Steps{"first made"});
}

TEST_F(HostTest, the_installed_host_answers_with_the_ports_that_it_was_given) {
    FakeHost fake;
    const Host& host = Host::current();
    EXPECT_EQ(&host.mainQueue(), &fake.mainQueue);
    EXPECT_EQ(&host.userDefaults(), &fake.userDefaults);
    EXPECT_EQ(&host.application(), &fake.application);
    EXPECT_EQ(&host.windows(), &fake.windows);
    EXPECT_EQ(&host.screens(), &fake.screens);
    EXPECT_EQ(&host.hotKeys(), &fake.hotKeys);
    EXPECT_EQ(&host.statusBar(), &fake.statusBar);
    EXPECT_EQ(&host.images(), &fake.images);
    EXPECT_EQ(&host.graphics(), &fake.graphics);
}

TEST_F(HostTest, each_host_has_a_notification_centre_of_its_own) {
    int heard = 0;
    Cancellable observer;
    {
        FakeHost host;
        observer = host.notificationCenter().addObserver("name", [&](const auto&) { ++heard; });
    }
    FakeHost host;
    host.notificationCenter().post("name");
    EXPECT_EQ(heard, 0);
}

TEST(HostDeathTest, to_ask_for_a_host_when_there_is_none_ends_the_program) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_DEATH(Host::current(), "quillon-mark: no host is installed");
}

TEST(HostDeathTest, a_second_host_ends_the_program) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const FakeHost first;
    EXPECT_DEATH(FakeHost(), "quillon-mark: a second host was installed");
}

TEST(Host, pending_work_ends_with_the_host_together_with_the_windows_it_holds) {
    FakePorts fakes;
    {
        const Host host(fakes.ports());
        const auto window = std::make_shared<Window>(
            CGRect{0, 0, 1, 1}, WindowStyleMask::borderless, BackingStoreType::buffered, false);
        fakes.mainQueue.asyncAfter(1, [window] { window->close(); });
    }
    EXPECT_TRUE(fakes.mainQueue.isIdle());
    EXPECT_TRUE(fakes.application.windows().empty());
}

} // namespace quillon::test
