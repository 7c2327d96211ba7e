#include "annotation/OverlayTest.h"
#include "model/NotificationNames.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

class AutoErase : public OverlayTest {
protected:
    AutoErase() {
        annotate();
        settings().autoEraseTimer = AutoEraseTimer::twoSeconds;
    }

    std::vector<Drawing> strokesDrawn() const {
        auto drawn = host.graphics.drawn;
        std::erase_if(drawn,
                      [](const Drawing& each) { return each.kind != Drawing::Kind::stroke; });
        return drawn;
    }
};

TEST_F(AutoErase, a_stroke_goes_two_seconds_after_its_completion_and_an_undo_keeps_it_for_good) {
    drag({10, 10}, {50, 50});
    host.mainQueue.advance(1.99);
    EXPECT_EQ(state().strokes->size(), 1U);
    host.mainQueue.advance(0.02);
    EXPECT_TRUE(state().strokes->empty());
    EXPECT_TRUE(state().canUndo());
    state().undo();
    host.mainQueue.advance(20);
    EXPECT_EQ(state().strokes->size(), 1U);
}

TEST_F(AutoErase, a_stroke_fades_over_half_a_second) {
    drag({10, 10}, {50, 50});
    host.mainQueue.advance(2);
    update();
    host.mainQueue.advance(0.25);
    host.graphics.drawn.clear();
    EXPECT_FALSE(update().isEmpty());
    EXPECT_EQ(painted().size(), 1U);
    ASSERT_EQ(strokesDrawn().size(), 1U);
    EXPECT_NEAR(strokesDrawn()[0].receivedOpacity, 1 - TimingCurve::easeOut.progressAt(0.5), 1e-9);
    host.mainQueue.advance(0.24);
    update();
    EXPECT_EQ(painted().size(), 1U);
    host.mainQueue.advance(0.02);
    EXPECT_FALSE(update().isEmpty());
    EXPECT_TRUE(painted().empty());
    host.mainQueue.advance(1);
    EXPECT_TRUE(update().isEmpty());
    EXPECT_TRUE(host.mainQueue.isIdle());
}

TEST_F(AutoErase, however_many_strokes_fade_at_once_input_waits_for_one_step_and_they_go_in_time) {
    for (int stroke = 0; stroke < 200; ++stroke) {
        drag({10, 10}, {50, 50});
    }
    host.mainQueue.advance(2);
    update();
    std::size_t drawn = 0;
    for (int frame = 1; frame <= 4; ++frame) {
        host.mainQueue.advance(0.1);
        host.graphics.drawn.clear();
        update();
        for (int turn = 0; turn < 10; ++turn) {
            EXPECT_LE(strokesDrawn().size(), 32U);
            drawn += strokesDrawn().size();
            host.graphics.drawn.clear();
            host.mainQueue.turn();
        }
    }
    EXPECT_EQ(drawn, 4U * 200);
    host.mainQueue.advance(0.2);
    update();
    host.mainQueue.run();
    EXPECT_TRUE(painted().empty());
    EXPECT_TRUE(state().strokes->empty());
}

TEST_F(AutoErase, an_undo_within_the_fade_shows_the_stroke_in_full_at_once) {
    drag({10, 10}, {50, 50});
    host.mainQueue.advance(2);
    update();
    host.mainQueue.advance(0.25);
    update();
    state().undo();
    host.graphics.drawn.clear();
    update();
    ASSERT_FALSE(strokesDrawn().empty());
    for (const auto& drawing : strokesDrawn()) {
        EXPECT_EQ(drawing.receivedOpacity, 1);
    }
    host.mainQueue.advance(1);
    EXPECT_TRUE(host.mainQueue.isIdle());
}

TEST_F(AutoErase, strokes_that_fade_together_keep_their_order) {
    settings().autoEraseTimer = AutoEraseTimer::fiveSeconds;
    settings().lineWidth = 3.0;
    drag({10, 10}, {50, 50});
    settings().autoEraseTimer = AutoEraseTimer::twoSeconds;
    settings().lineWidth = 6.0;
    host.mainQueue.advance(2.9);
    drag({10, 10}, {50, 50});
    host.mainQueue.advance(2.2);
    host.graphics.drawn.clear();
    update();
    const auto strokes = strokesDrawn();
    ASSERT_EQ(strokes.size(), 2U);
    EXPECT_EQ(strokes[0].style.lineWidth, 3);
    EXPECT_EQ(strokes[1].style.lineWidth, 6);
}

TEST_F(AutoErase, a_task_for_a_stroke_that_was_undone_still_costs_a_step_and_the_redo) {
    drag({10, 10}, {50, 50});
    state().undo();
    ASSERT_TRUE(state().canRedo());
    host.mainQueue.advance(2.1);
    EXPECT_EQ(state().undoStack->size(), 1U);
    EXPECT_FALSE(state().canRedo());
}

TEST_F(AutoErase, the_setting_switched_off_afterwards_leaves_the_old_deadline) {
    drag({10, 10}, {50, 50});
    settings().autoEraseTimer = AutoEraseTimer::off;
    host.mainQueue.advance(2.1);
    EXPECT_TRUE(state().strokes->empty());
}

TEST_F(AutoErase, clearing_and_leaving_annotation_leave_the_old_deadline) {
    drag({10, 10}, {50, 50});
    post(NotificationName::clearAnnotations);
    settings().isAnnotationEnabled = false;
    update();
    state().undo();
    ASSERT_EQ(state().strokes->size(), 1U);
    host.mainQueue.advance(2.1);
    EXPECT_TRUE(state().strokes->empty());
    EXPECT_FALSE(state().canRedo());
}

TEST_F(AutoErase, a_text_and_a_highlighter_stroke_have_deadlines_too) {
    settings().selectedTool = DrawingTool::highlighter;
    drag({10, 10}, {50, 50});
    settings().selectedTool = DrawingTool::text;
    overlay.mouseDown({100, 100});
    overlay.mouseUp({100, 100});
    overlay.textField()->text.set("short");
    overlay.textField()->onSubmit();
    ASSERT_EQ(state().strokes->size(), 2U);
    host.mainQueue.advance(2.1);
    EXPECT_TRUE(state().strokes->empty());
}

TEST_F(AutoErase, the_eraser_gets_no_task) {
    settings().selectedTool = DrawingTool::eraser;
    drag({10, 10}, {50, 50});
    EXPECT_TRUE(host.mainQueue.isIdle());
}

TEST_F(AutoErase, each_stroke_has_a_deadline_of_its_own) {
    drag({10, 10}, {50, 50});
    host.mainQueue.advance(1);
    settings().selectedTool = DrawingTool::rectangle;
    drag({100, 100}, {150, 150});
    host.mainQueue.advance(1.1);
    ASSERT_EQ(state().strokes->size(), 1U);
    EXPECT_TRUE(state().strokes.get()[0].isShape);
    host.mainQueue.advance(1);
    EXPECT_TRUE(state().strokes->empty());
}

TEST_F(AutoErase, a_task_that_outlives_the_view_does_nothing) {
    {
        OverlayContainerView other(settings());
        other.layout({100, 100}, 1);
        other.takeDamage();
        other.mouseDown({1, 1});
        other.mouseDragged({9, 9});
        other.mouseUp({9, 9});
    }
    host.mainQueue.advance(3);
    EXPECT_TRUE(state().strokes->empty());
}

} // namespace
} // namespace quillon::test
