#include "annotation/TestStrokes.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace quillon::test {
namespace {

/// A stroke with a place of its own, so that two of them can be told apart.
DrawingStroke numbered(int number) {
    return freehand({{static_cast<CGFloat>(number), 0}, {0, 1}});
}

TEST(DrawingState, starts_empty) {
    DrawingState state;
    EXPECT_TRUE(state.strokes->empty());
    EXPECT_FALSE(state.currentStroke.get());
    EXPECT_FALSE(state.canUndo());
    EXPECT_FALSE(state.canRedo());
}

TEST(DrawingState, holds_the_last_50_snapshots_and_no_more) {
    DrawingState state;
    for (int number = 0; number < 51; ++number) {
        state.addStroke(numbered(number));
    }
    EXPECT_EQ(state.undoStack->size(), 50U);
    EXPECT_EQ(state.undoStack->front().size(), 1U);
    for (int step = 0; step < 50; ++step) {
        state.undo();
    }
    EXPECT_EQ(state.strokes->size(), 1U);
    state.undo();
    EXPECT_EQ(state.strokes->size(), 1U);
    EXPECT_EQ(state.redoStack->size(), 50U);
}

TEST(DrawingState, drops_as_many_of_the_oldest_snapshots_as_there_are_above_50) {
    DrawingState state;
    std::vector<StrokeList> snapshots(53);
    snapshots[4].append(numbered(4));
    state.undoStack = snapshots;
    state.addStroke(numbered(1));
    EXPECT_EQ(state.undoStack->size(), 50U);
    EXPECT_EQ(state.undoStack->front().size(), 1U);
}

TEST(DrawingState, more_than_50_snapshots_are_seen_by_nobody_who_hears_the_list) {
    DrawingState state;
    state.undoStack = std::vector<StrokeList>(DrawingState::maxUndoSteps);
    std::vector<std::size_t> sizes;
    const auto subscription = state.strokes.sinkDroppingFirst(
        [&](const auto&) { sizes.push_back(state.undoStack->size()); });
    state.addStroke(numbered(1));
    state.removeStroke(UUID::random());
    state.clearAll();
    EXPECT_EQ(sizes, (std::vector<std::size_t>{50, 50, 50}));
}

TEST(DrawingState, a_stack_that_is_not_too_long_is_not_announced_a_second_time) {
    DrawingState state;
    state.undoStack = std::vector<StrokeList>(DrawingState::maxUndoSteps - 1);
    int heard = 0;
    const auto subscription = state.undoStack.sinkDroppingFirst([&](const auto&) { ++heard; });
    state.addStroke(numbered(1));
    EXPECT_EQ(heard, 1);
}

TEST(DrawingState, adding_takes_the_snapshot_then_adds_then_empties_the_redo_stack) {
    DrawingState state;
    std::vector<std::string> steps;
    const auto snapshot =
        state.undoStack.sinkDroppingFirst([&](const auto&) { steps.emplace_back("snapshot"); });
    const auto list =
        state.strokes.sinkDroppingFirst([&](const auto&) { steps.emplace_back("strokes"); });
    const auto redo =
        state.redoStack.sinkDroppingFirst([&](const auto&) { steps.emplace_back("redo"); });
    state.addStroke(numbered(1));
    EXPECT_EQ(steps, (std::vector<std::string>{"snapshot", "strokes", "redo"}));
}

TEST(DrawingState, adding_after_an_undo_empties_the_redo_stack) {
    DrawingState state;
    state.addStroke(numbered(1));
    state.undo();
    ASSERT_TRUE(state.canRedo());
    state.addStroke(numbered(2));
    EXPECT_FALSE(state.canRedo());
}

TEST(DrawingState, undo_and_redo_on_an_empty_history_change_nothing_and_are_not_heard) {
    DrawingState state;
    int heard = 0;
    const auto subscription = state.objectWillChange.sink([&] { ++heard; });
    state.undo();
    state.redo();
    EXPECT_EQ(heard, 0);
    EXPECT_TRUE(state.strokes->empty());
}

TEST(DrawingState, undo_and_redo_restore_the_same_strokes) {
    DrawingState state;
    state.addStroke(numbered(1));
    state.addStroke(numbered(2));
    const auto before = idsOf(state.strokes);
    state.undo();
    EXPECT_EQ(idsOf(state.strokes), (std::vector<UUID>{before[0]}));
    state.redo();
    EXPECT_EQ(idsOf(state.strokes), before);
}

TEST(DrawingState, what_was_redone_can_be_undone_again) {
    DrawingState state;
    state.addStroke(numbered(1));
    state.addStroke(numbered(2));
    const auto both = idsOf(state.strokes);
    state.undo();
    state.undo();
    state.redo();
    state.redo();
    EXPECT_EQ(state.undoStack->size(), 2U);
    EXPECT_FALSE(state.canRedo());
    state.undo();
    EXPECT_EQ(idsOf(state.strokes), (std::vector<UUID>{both[0]}));
    state.undo();
    EXPECT_TRUE(state.strokes->empty());
}

TEST(DrawingState, undo_and_redo_keep_the_present_list_then_take_a_snapshot_then_show_it) {
    DrawingState state;
    state.addStroke(numbered(1));
    std::vector<std::string> steps;
    const auto undo =
        state.undoStack.sinkDroppingFirst([&](const auto&) { steps.emplace_back("undo stack"); });
    const auto redo =
        state.redoStack.sinkDroppingFirst([&](const auto&) { steps.emplace_back("redo stack"); });
    const auto list =
        state.strokes.sinkDroppingFirst([&](const auto&) { steps.emplace_back("strokes"); });
    state.undo();
    EXPECT_EQ(steps, (std::vector<std::string>{"redo stack", "undo stack", "strokes"}));
    steps.clear();
    state.redo();
    EXPECT_EQ(steps, (std::vector<std::string>{"undo stack", "redo stack", "strokes"}));
}

TEST(DrawingState, removing_an_unknown_stroke_costs_an_undo_step_and_the_redo_stack) {
    DrawingState state;
    state.addStroke(numbered(1));
    state.addStroke(numbered(2));
    state.undo();
    const auto before = idsOf(state.strokes);
    state.removeStroke(UUID::random());
    EXPECT_EQ(idsOf(state.strokes), before);
    EXPECT_EQ(state.undoStack->size(), 2U);
    EXPECT_FALSE(state.canRedo());
}

TEST(DrawingState, removing_takes_every_stroke_of_that_id) {
    DrawingState state;
    const DrawingStroke twin = numbered(1);
    state.addStroke(twin);
    state.addStroke(numbered(2));
    state.addStroke(twin);
    state.removeStroke(twin.id());
    EXPECT_EQ(state.strokes->size(), 1U);
}

TEST(DrawingState, clearing_an_empty_list_adds_an_undo_step_whose_snapshot_is_empty) {
    DrawingState state;
    state.clearAll();
    ASSERT_EQ(state.undoStack->size(), 1U);
    EXPECT_TRUE(state.undoStack->front().empty());
}

TEST(DrawingState, clearing_an_empty_list_empties_the_redo_stack) {
    DrawingState state;
    state.addStroke(numbered(1));
    state.undo();
    ASSERT_TRUE(state.strokes->empty());
    state.clearAll();
    EXPECT_FALSE(state.canRedo());
}

TEST(DrawingState, undo_and_redo_leave_the_stroke_in_progress) {
    DrawingState state;
    state.addStroke(numbered(1));
    const DrawingStroke young = numbered(2);
    state.currentStroke = young;
    state.undo();
    EXPECT_EQ(state.currentStroke.get(), young);
    state.redo();
    EXPECT_EQ(state.currentStroke.get(), young);
}

TEST(DrawingState, clearing_leaves_the_stroke_in_progress) {
    DrawingState state;
    state.addStroke(numbered(1));
    state.currentStroke = numbered(2);
    state.clearAll();
    EXPECT_TRUE(state.strokes->empty());
    EXPECT_TRUE(state.currentStroke.get());
}

TEST(DrawingState, undo_brings_back_what_the_eraser_took_and_redo_its_shortened_form) {
    DrawingState state;
    const DrawingStroke stroke = freehand({{0, 0}, {10, 0}, {20, 0}});
    state.addStroke(stroke);
    DrawingStroke shortened = stroke;
    shortened.points.erase(shortened.points.begin());
    state.strokes.modify([&](StrokeList& strokes) { strokes.replace(0, shortened); });
    state.undo();
    EXPECT_TRUE(state.strokes->empty());
    state.redo();
    EXPECT_EQ(state.strokes.get()[0], shortened);
}

TEST(DrawingState, cancelling_the_stroke_in_progress_leaves_both_stacks) {
    DrawingState state;
    state.addStroke(numbered(1));
    state.addStroke(numbered(2));
    state.undo();
    state.currentStroke = numbered(3);
    state.cancelCurrentStroke();
    EXPECT_FALSE(state.currentStroke.get());
    EXPECT_EQ(state.undoStack->size(), 1U);
    EXPECT_EQ(state.redoStack->size(), 1U);
}

TEST(DrawingState, every_published_field_is_heard) {
    DrawingState state;
    int heard = 0;
    const auto subscription = state.objectWillChange.sink([&] { ++heard; });
    state.currentStroke = numbered(1);
    EXPECT_EQ(heard, 1);
    state.addStroke(numbered(1));
    EXPECT_GE(heard, 4);
}

} // namespace
} // namespace quillon::test
