#include "cursor/ClickAnimationView.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillon::test {

namespace {

/// A view in a window of its own size, with a clock that the test moves.
struct ClickAnimationTest : testing::Test {
    ClickAnimationView& make(ClickAnimationType type, bool isRightClick = false) {
        view = std::make_unique<ClickAnimationView>(Color::cyan, 60, type, isRightClick);
        view->layout({60, 60}, 1);
        return *view;
    }
    ClickAnimationView& start(ClickAnimationType type, bool isRightClick = false) {
        make(type, isRightClick).onAppear();
        return *view;
    }
    std::vector<Drawing> paint() {
        RecordingContext context;
        view->paint(context, {0, 0, 60, 60});
        return context.drawings;
    }
    void advance(double seconds) { host.mainQueue.advance(seconds); }

    FakeHost host;
    std::unique_ptr<ClickAnimationView> view;
};

CGFloat diameter(const Drawing& drawing) {
    return drawing.path.controlPointBounds().width;
}

} // namespace

TEST_F(ClickAnimationTest, before_it_appears_it_stands_at_its_start) {
    make(ClickAnimationType::ripple);
    advance(10);
    EXPECT_EQ(view->scale(), 0.1);
    EXPECT_EQ(view->opacity(), 1.0);
    EXPECT_EQ(view->rotation(), 0.0);
}

TEST_F(ClickAnimationTest, it_eases_out_in_two_fifths_of_a_second) {
    start(ClickAnimationType::pulse);
    EXPECT_NEAR(view->scale(), 0.1, 1e-9);
    EXPECT_NEAR(view->opacity(), 1, 1e-9);
    advance(0.1);
    const double progress = TimingCurve::easeOut.progressAt(0.25);
    EXPECT_NEAR(view->scale(), 0.1 + 1.4 * progress, 1e-9);
    EXPECT_NEAR(view->opacity(), 1 - progress, 1e-9);
    advance(0.31);
    EXPECT_EQ(view->scale(), 1.5);
    EXPECT_EQ(view->opacity(), 0.0);
}

TEST_F(ClickAnimationTest, the_rotation_runs_evenly_for_a_ripple_and_not_for_a_pulse) {
    start(ClickAnimationType::ripple);
    advance(0.1);
    EXPECT_NEAR(view->rotation(), 90, 1e-6);
    start(ClickAnimationType::pulse);
    advance(0.1);
    EXPECT_EQ(view->rotation(), 0);
}

TEST_F(ClickAnimationTest, its_frame_is_twice_its_size_and_reaches_beyond_its_window) {
    EXPECT_EQ(make(ClickAnimationType::pulse).frameSize(), (CGSize{120, 120}));
    EXPECT_EQ(view->overflow(), 30);
}

TEST_F(ClickAnimationTest, a_pulse_is_one_circle_that_grows_from_6_to_90_points) {
    start(ClickAnimationType::pulse);
    const auto first = paint();
    ASSERT_EQ(first.size(), 1U);
    Path circle;
    circle.addEllipse({27, 27, 6, 6});
    EXPECT_EQ(first[0].path, circle);
    EXPECT_EQ(first[0].color, Color::cyan);
    EXPECT_EQ(first[0].style, (StrokeStyle{.lineWidth = 3}));
    EXPECT_EQ(first[0].opacity, 1);
    EXPECT_FALSE(first[0].shadow);
    advance(0.2);
    EXPECT_NEAR(paint()[0].opacity, view->opacity(), 1e-9);
    EXPECT_NEAR(diameter(paint()[0]), 60 * view->scale(), 1e-9);
    advance(0.3);
    EXPECT_NEAR(diameter(paint()[0]), 90, 1e-9);
    EXPECT_EQ(paint()[0].opacity, 0);
}

TEST_F(ClickAnimationTest, the_pulse_of_a_right_click_has_a_wider_line_and_nothing_else) {
    start(ClickAnimationType::pulse);
    const auto left = paint();
    start(ClickAnimationType::pulse, true);
    const auto right = paint();
    EXPECT_EQ(right[0].style, (StrokeStyle{.lineWidth = 4}));
    EXPECT_EQ(right[0].path, left[0].path);
    EXPECT_EQ(right[0].color, left[0].color);
}

TEST_F(ClickAnimationTest, a_ripple_is_three_circles_each_larger_and_fainter) {
    start(ClickAnimationType::ripple);
    advance(0.1);
    const auto circles = paint();
    ASSERT_EQ(circles.size(), 3U);
    const double opacity = view->opacity();
    for (std::size_t index = 0; index < 3; ++index) {
        const Drawing& circle = circles[index];
        const double step = static_cast<double>(index);
        EXPECT_NEAR(diameter(circle), 60 * view->scale() * (1 + step * 0.3), 1e-9);
        EXPECT_NEAR(circle.path.controlPointBounds().midX(), 30, 1e-9);
        EXPECT_NEAR(circle.path.controlPointBounds().midY(), 30, 1e-9);
        EXPECT_NEAR(circle.color.resolved().alpha, opacity * 0.7, 1e-9);
        EXPECT_NEAR(circle.opacity, opacity * (1 - step * 0.2), 1e-9);
        EXPECT_EQ(circle.style, (StrokeStyle{.lineWidth = 2}));
    }
}

TEST_F(ClickAnimationTest, a_ripple_looks_the_same_for_both_buttons) {
    start(ClickAnimationType::ripple);
    const auto left = paint();
    start(ClickAnimationType::ripple, true);
    const auto right = paint();
    for (std::size_t index = 0; index < 3; ++index) {
        EXPECT_EQ(right[index].path, left[index].path);
        EXPECT_EQ(right[index].color, left[index].color);
        EXPECT_EQ(right[index].style, left[index].style);
        EXPECT_EQ(right[index].opacity, left[index].opacity);
    }
}

TEST_F(ClickAnimationTest, at_its_end_all_circles_of_a_ripple_have_faded) {
    start(ClickAnimationType::ripple);
    advance(0.4001);
    for (const Drawing& circle : paint()) {
        EXPECT_EQ(circle.opacity, 0);
        EXPECT_EQ(circle.color.resolved().alpha, 0);
    }
}

TEST_F(ClickAnimationTest, a_view_of_no_type_is_empty) {
    start(ClickAnimationType::none);
    EXPECT_TRUE(paint().empty());
}

TEST_F(ClickAnimationTest, it_asks_for_frames_until_it_has_ended_and_shows_its_end) {
    make(ClickAnimationType::pulse);
    int frames = 0;
    double lastOpacity = 1;
    view->setUpdateRequest([&] {
        if (!view->takeDamage().isEmpty()) {
            ++frames;
            lastOpacity = view->opacity();
        }
    });
    view->onAppear();
    advance(2);
    EXPECT_GE(frames, 24);
    EXPECT_LE(frames, 27);
    EXPECT_EQ(lastOpacity, 0);
    EXPECT_TRUE(host.mainQueue.isIdle());
    EXPECT_TRUE(view->takeDamage().isEmpty());
}

TEST_F(ClickAnimationTest, a_view_that_goes_in_the_middle_leaves_nothing_behind) {
    start(ClickAnimationType::pulse);
    view->takeDamage();
    view.reset();
    advance(1);
    EXPECT_TRUE(host.mainQueue.isIdle());
}

} // namespace quillon::test
