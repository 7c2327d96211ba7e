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
        const auto contains = [](const StrokeList& strokes, const StrokeRef& wanted) {
            for (std::size_t index = 0; index < strokes.size(); ++index) {
                if (strokes.ref(index) == wanted) {
                    return true;
                }
            }
            return false;
        };
        std::vector<StrokeRef> removed;
        std::vector<StrokeRef> added;
        for (std::size_t index = 0; index < before.size(); ++index) {
            if (!contains(list, before.ref(index))) {
                removed.push_back(before.ref(index));
            }
        }
        for (std::size_t index = 0; index < list.size(); ++index) {
            if (!contains(before, list.ref(index))) {
                added.push_back(list.ref(index));
            }
        }
        ASSERT_EQ(difference.removed, removed) << "round " << round;
        ASSERT_EQ(difference.added, added) << "round " << round;
        if (difference.isPureAppend) {
            ASSERT_TRUE(removed.empty());
        }
    }
}

} // namespace
} // namespace quillon::test
