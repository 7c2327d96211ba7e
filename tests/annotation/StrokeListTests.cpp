#include "annotation/TestStrokes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace quillon::test {
namespace {

StrokeList listOf(int count) {
    StrokeList list;
    for (int number = 0; number < count; ++number) {
        list.append(freehand({{static_cast<CGFloat>(number), 0}, {0, 1}}));
    }
    return list;
}

TEST(StrokeList, a_copy_is_a_value_of_its_own) {
    StrokeList list = listOf(600);
    const StrokeList copy = list;
    list.replace(10, freehand({{1, 1}, {2, 2}}));
    list.removeIf([&](const DrawingStroke& stroke) { return stroke.id() == copy[300].id(); });
    list.append(freehand({{3, 3}, {4, 4}}));
    EXPECT_EQ(copy.size(), 600U);
    EXPECT_EQ(copy[10].points.front().x, 10);
    EXPECT_EQ(copy[300].points.front().x, 300);
    EXPECT_EQ(list.size(), 600U);
}

TEST(StrokeList, a_copy_shares_the_strokes) {
    StrokeList list = listOf(300);
    const StrokeList copy = list;
    list.append(freehand({{1, 1}, {2, 2}}));
    for (std::size_t index = 0; index < copy.size(); ++index) {
        ASSERT_EQ(copy.ref(index), list.ref(index));
    }
}

TEST(StrokeList, removing_keeps_the_order_of_the_others_over_any_border) {
    StrokeList list = listOf(1000);
    list.removeIf([](const DrawingStroke& stroke) {
        return static_cast<int>(stroke.points.front().x) % 3 == 1;
    });
    ASSERT_EQ(list.size(), 667U);
    for (std::size_t index = 1; index < list.size(); ++index) {
        ASSERT_LT(list[index - 1].points.front().x, list[index].points.front().x);
    }
}

TEST(StrokeList, the_order_grows_and_a_replacement_takes_it_over) {
    StrokeList list = listOf(3);
    const auto order = list.ref(1)->order();
    list.replace(1, freehand({{9, 9}, {8, 8}}));
    EXPECT_EQ(list.ref(1)->order(), order);
    EXPECT_LT(list.ref(0)->order(), order);
    EXPECT_GT(list.ref(2)->order(), order);
}

std::vector<StrokeRef> standingInFirstAlone(const StrokeList& first, const StrokeList& second) {
    std::vector<StrokeRef> alone;
    for (std::size_t index = 0; index < first.size(); ++index) {
        bool isInBoth = false;
        for (std::size_t other = 0; other < second.size(); ++other) {
            isInBoth = isInBoth || second.ref(other) == first.ref(index);
        }
        if (!isInBoth) {
            alone.push_back(first.ref(index));
        }
    }
    return alone;
}

TEST(StrokeList, the_difference_is_that_of_the_two_sets) {
    std::mt19937 random(3);
    StrokeList list = listOf(700);
    for (int round = 0; round < 60; ++round) {
        const StrokeList before = list;
        switch (random() % 4) {
        case 0:
            list.append(freehand({{5, 5}, {6, 6}}));
            break;
        case 1:
            list.replace(random() % list.size(), freehand({{7, 7}, {8, 8}}));
            break;
        case 2: {
            const auto divisor = 2 + random() % 50;
            std::size_t place = 0;
            list.removeIf([&](const DrawingStroke&) { return place++ % divisor == 0; });
            break;
        }
        default:
            for (int added = 0; added < 100; ++added) {
                list.append(freehand({{1, 2}, {3, 4}}));
            }
        }
        const auto difference = StrokeList::difference(before, list);
        std::vector<StrokeRef> removed = difference.removed;
        std::vector<StrokeRef> added = difference.added;
        for (const auto& [gone, come] : difference.replaced) {
            ASSERT_EQ(gone->order(), come->order());
            removed.push_back(gone);
            added.push_back(come);
        }
        std::ranges::sort(removed, {}, &FinishedStroke::order);
        std::ranges::sort(added, {}, &FinishedStroke::order);
        ASSERT_EQ(removed, standingInFirstAlone(before, list)) << "round " << round;
        ASSERT_EQ(added, standingInFirstAlone(list, before)) << "round " << round;
    }
}

TEST(StrokeList, two_strokes_in_the_same_place_are_no_two_forms_of_one) {
    StrokeList before = listOf(600);
    StrokeList after = before;
    before.append(freehand({{5, 5}, {6, 6}}));
    after.append(freehand({{7, 7}, {8, 8}}));
    const auto difference = StrokeList::difference(before, after);
    EXPECT_TRUE(difference.replaced.empty());
    EXPECT_EQ(difference.removed, std::vector{before.ref(600)});
    EXPECT_EQ(difference.added, std::vector{after.ref(600)});
}

TEST(StrokeList, a_replaced_stroke_is_told_together_with_the_one_in_its_place) {
    const StrokeList before = listOf(600);
    StrokeList after = before;
    DrawingStroke shortened = before[300];
    shortened.points.pop_back();
    after.replace(300, shortened);
    const auto difference = StrokeList::difference(before, after);
    ASSERT_EQ(difference.replaced.size(), 1U);
    EXPECT_EQ(difference.replaced[0].before, before.ref(300));
    EXPECT_EQ(difference.replaced[0].after, after.ref(300));
    EXPECT_TRUE(difference.removed.empty());
    EXPECT_TRUE(difference.added.empty());
}

TEST(StrokeList, finds_a_stroke_by_its_order) {
    StrokeList list = listOf(700);
    list.removeIf([](const DrawingStroke& stroke) {
        return static_cast<int>(stroke.points.front().x) % 3 == 1;
    });
    for (std::uint64_t order = 0; order < 702; ++order) {
        const FinishedStroke* found = list.withOrder(order);
        ASSERT_EQ(found != nullptr, order < 700 && order % 3 != 1);
        ASSERT_TRUE(!found || found->order() == order);
    }
    EXPECT_EQ(StrokeList().withOrder(0), nullptr);
}

TEST(StrokeList, equal_lists_have_no_difference) {
    const StrokeList list = listOf(600);
    EXPECT_TRUE(StrokeList::difference(list, list).isEmpty());
}

} // namespace
} // namespace quillon::test
