#include "annotation/OverlayTest.h"
#include "annotation/PenRest.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

class OverlayDamage : public OverlayTest {};

TEST_F(OverlayDamage, nothing_changed_is_nothing_to_paint) {
    annotate();
    drag({10, 10}, {50, 50});
    update();
    EXPECT_TRUE(update().isEmpty());
}

TEST_F(OverlayDamage, a_change_asks_for_an_update) {
    annotate();
    const int before = updateRequests;
    overlay.mouseDown({10, 10});
    EXPECT_GT(updateRequests, before);
}

TEST_F(OverlayDamage, an_undo_damages_only_what_it_took) {
    annotate();
    drag({10, 10}, {50, 50});
    drag({500, 500}, {550, 550});
    update();
    state().undo();
    const Damage damage = update();
    EXPECT_TRUE(damage.intersects({520, 520, 10, 10}));
    EXPECT_FALSE(damage.intersects({0, 0, 100, 100}));
}

TEST_F(OverlayDamage, a_picture_asked_for_before_the_update_shows_the_stroke_as_it_now_is) {
    annotate();
    overlay.mouseDown({10, 10});
    for (int step = 1; step <= 200; ++step) {
        overlay.mouseDragged({10.0 + step, 10});
    }
    update();
    overlay.mouseDragged({10, 10});
    EXPECT_TRUE(painted().empty()) << "a stroke of one point has no picture";
    overlay.mouseDragged({10, 60});
    const auto drawings = painted();
    ASSERT_EQ(drawings.size(), 1U);
    EXPECT_EQ(drawings[0].path.points(), (std::vector<CGPoint>{{10, 10}, {10, 60}}));
}

TEST_F(OverlayDamage, what_a_picture_brought_forward_is_still_owed_by_the_update) {
    annotate();
    overlay.mouseDown({10, 10});
    overlay.mouseDragged({100, 10});
    update();
    overlay.mouseDragged({100, 300});
    painted();
    state().cancelCurrentStroke();
    painted();
    const Damage damage = update();
    EXPECT_TRUE(damage.intersects({50, 9, 1, 1}));
    EXPECT_TRUE(damage.intersects({100, 299, 1, 1}));
}

TEST_F(OverlayDamage, a_motion_of_the_pen_waits_for_no_repaint) {
    annotate();
    for (int stroke = 0; stroke < 500; ++stroke) {
        drag({10, 10}, {50, 50});
    }
    state().undo();
    update();
    overlay.mouseDown({300, 300});
    update();
    host.graphics.drawn.clear();
    overlay.mouseDragged({350, 350});
    EXPECT_TRUE(update().intersects({325, 325, 1, 1}));
    EXPECT_TRUE(host.graphics.drawn.empty());
}

TEST_F(OverlayDamage, a_repaint_takes_a_step_with_each_turn_and_asks_for_an_update_at_its_end) {
    annotate();
    for (int stroke = 0; stroke < 500; ++stroke) {
        drag({10, 10}, {50, 50});
    }
    state().undo();
    EXPECT_TRUE(update().isEmpty());
    const int before = updateRequests;
    int turns = 0;
    while (updateRequests == before) {
        host.graphics.drawn.clear();
        host.mainQueue.turn();
        ASSERT_FALSE(host.graphics.drawn.empty()) << "in turn " << turns;
        ++turns;
    }
    EXPECT_GT(turns, 10);
    EXPECT_TRUE(host.mainQueue.isIdle());
    EXPECT_TRUE(update().intersects({29, 29, 2, 2}));
}

TEST_F(OverlayDamage, a_repaint_rests_while_the_picture_of_a_motion_is_on_its_way) {
    annotate();
    for (int stroke = 0; stroke < 500; ++stroke) {
        drag({10, 10}, {50, 50});
    }
    overlay.mouseDown({300, 300});
    overlay.mouseDragged({350, 350});
    state().undo();
    update();
    host.graphics.drawn.clear();
    host.mainQueue.advance(PenRest::length * 0.9);
    EXPECT_TRUE(host.graphics.drawn.empty());
    host.mainQueue.advance(PenRest::length * 0.2);
    EXPECT_FALSE(host.graphics.drawn.empty());
}

TEST_F(OverlayDamage, motions_without_a_gap_leave_a_repaint_time_to_end) {
    annotate();
    for (int stroke = 0; stroke < 500; ++stroke) {
        drag({10, 10}, {50, 50});
    }
    overlay.mouseDown({300, 300});
    state().undo();
    int motions = 0;
    Damage damage;
    for (; !damage.intersects({29, 29, 2, 2}) && motions < 1000; ++motions) {
        overlay.mouseDragged({300.0 + motions % 50, 300});
        damage = update();
        host.mainQueue.pass(PenRest::length / 10);
        host.mainQueue.turn();
    }
    EXPECT_LT(motions, 100);
}

TEST_F(OverlayDamage, during_a_drag_a_picture_goes_to_the_screen_piece_after_piece_with_a_rest) {
    annotate();
    settings().lineWidth = 400;
    drag({0, 400}, {1000, 400});
    update();
    settings().lineWidth = 4;
    overlay.mouseDown({10, 10});
    update();
    state().undo();
    int pieces = 0;
    for (Damage piece = update(); !piece.isEmpty(); piece = update()) {
        ++pieces;
        const int before = updateRequests;
        host.mainQueue.advance(PenRest::length * 0.5);
        EXPECT_EQ(updateRequests, before) << "after piece " << pieces;
        host.mainQueue.advance(PenRest::length * 0.51);
    }
    EXPECT_GT(pieces, 10);
}

TEST_F(OverlayDamage, with_no_drag_a_picture_goes_to_the_screen_without_a_rest) {
    annotate();
    settings().lineWidth = 400;
    drag({0, 400}, {1000, 400});
    host.mainQueue.advance(1);
    update();
    state().undo();
    Damage shown = update();
    host.mainQueue.run();
    shown.add(update());
    EXPECT_TRUE(shown.intersects({990, 590, 1, 1}));
}

TEST_F(OverlayDamage, a_new_size_paints_everything) {
    overlay.layout({300, 200}, 2);
    EXPECT_EQ(update().bounds(), (CGRect{0, 0, 300, 200}));
}

} // namespace
} // namespace quillon::test
