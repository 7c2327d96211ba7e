#include "foundation/Lifetime.h"

#include <gtest/gtest.h>

#include <memory>

namespace quillon::test {

namespace {

struct Owner {
    int calls = 0;
    Lifetime lifetime;
};

} // namespace

TEST(Lifetime, work_runs_while_its_owner_lives_and_hears_its_arguments) {
    Owner owner;
    auto work = owner.lifetime.guard([&](int amount) { owner.calls += amount; });
    work(2);
    work(3);
    EXPECT_EQ(owner.calls, 5);
}

TEST(Lifetime, work_does_nothing_after_its_owner_has_gone) {
    int calls = 0;
    auto owner = std::make_unique<Owner>();
    auto work = owner->lifetime.guard([&] { ++calls; });
    owner.reset();
    work();
    EXPECT_EQ(calls, 0);
}

} // namespace quillon::test
