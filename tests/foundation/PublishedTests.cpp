#include "foundation/Published.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillon::test {

namespace {

struct Model : ObservableObject {
    Published<int> number{*this, 1, [this](const int& value) { stored.push_back(value); }};
    Published<std::vector<int>> list{*this, {1, 2}};
    std::vector<int> stored;
};

using Steps = std::vector<std::string>;

} // namespace

TEST(Published, the_initial_value_is_no_assignment) {
    const Model model;
    EXPECT_EQ(model.number.get(), 1);
    EXPECT_TRUE(model.stored.empty());
}

TEST(Published, an_assignment_announces_delivers_stores_and_then_runs_its_step) {
    Model model;
    Steps steps;
    const auto state = [&] {
        return std::to_string(model.number.get()) + (model.stored.empty() ? "" : " persisted");
    };
    const auto will = model.objectWillChange.sink([&] { steps.push_back("will " + state()); });
    const auto heard = model.number.sinkDroppingFirst(
        [&](int value) { steps.push_back(std::to_string(value) + " over " + state()); });
    model.number = 5;
    EXPECT_EQ(steps, (Steps{"will 1", "5 over 1"}));
    EXPECT_EQ(state(), "5 persisted");
}

TEST(Published, an_equal_value_takes_the_same_path) {
    Model model;
    int announced = 0;
    const auto will = model.objectWillChange.sink([&] { ++announced; });
    model.number = 1;
    EXPECT_EQ(announced, 1);
    EXPECT_EQ(model.stored, std::vector{1});
}

TEST(Published, a_new_subscriber_hears_the_present_value_at_once_unless_it_drops_it) {
    Model model;
    std::vector<int> all;
    std::vector<int> later;
    const auto first = model.number.sink([&](int value) { all.push_back(value); });
    const auto second = model.number.sinkDroppingFirst([&](int value) { later.push_back(value); });
    model.number = 2;
    EXPECT_EQ(all, (std::vector{1, 2}));
    EXPECT_EQ(later, std::vector{2});
}

TEST(Published, an_assignment_from_within_a_delivery_ends_with_the_outer_value) {
    Model model;
    const auto subscription = model.number.sinkDroppingFirst([&](int value) {
        if (value == 2) {
            model.number = 3;
        }
    });
    model.number = 2;
    EXPECT_EQ(model.stored, (std::vector{3, 2}));
    EXPECT_EQ(model.number.get(), 2);
}

TEST(Published, a_change_in_place_takes_the_same_path_with_and_without_a_subscriber) {
    Model model;
    int announced = 0;
    const auto will = model.objectWillChange.sink([&] {
        ++announced;
        EXPECT_EQ(model.list->size(), announced == 1 ? 2U : 3U);
    });
    model.list.modify([](std::vector<int>& list) { list.push_back(3); });
    std::vector<std::size_t> sizes;
    const auto heard = model.list.sinkDroppingFirst([&](const std::vector<int>& list) {
        sizes.push_back(list.size());
        EXPECT_EQ(model.list->size(), 3U);
    });
    model.list.modify([](std::vector<int>& list) { list.push_back(4); });
    EXPECT_EQ(announced, 2);
    EXPECT_EQ(sizes, std::vector<std::size_t>{4});
    EXPECT_EQ(model.list.get(), (std::vector{1, 2, 3, 4}));
}

TEST(Published, a_value_assigned_from_another_property_is_an_assignment) {
    Model model;
    Model other;
    other.number = 9;
    model.number = other.number;
    EXPECT_EQ(model.number.get(), 9);
    EXPECT_EQ(model.stored, std::vector{9});
}

TEST(Published, a_binding_reads_and_writes_the_property) {
    Model model;
    const auto binding = model.number.binding();
    binding.set(7);
    EXPECT_EQ(binding.get(), 7);
    binding.modify([](int& value) { value += 1; });
    EXPECT_EQ(model.number.get(), 8);
    EXPECT_EQ(model.stored, (std::vector{7, 8}));
}

} // namespace quillon::test
