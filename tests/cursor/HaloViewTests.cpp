#include "cursor/HaloView.h"
#include "cursor/RhombusShape.h"
#include "support/RecordingContext.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillon::test {

namespace {

using Points = std::vector<CGPoint>;

/// What a view paints in a window of that size: one stroke.
Drawing painted(HaloView view, CGSize window) {
    view.layout(window, 1);
    RecordingContext context;
    view.paint(context, {0, 0, window.width, window.height});
    EXPECT_EQ(context.drawings.size(), 1U);
    return context.drawings.front();
}

Drawing painted(HaloShape shape, CGFloat size, const Color& color = Color::cyan) {
    return painted(HaloView(shape, color, size), {size, size});
}

} // namespace

TEST(HaloView, every_shape_is_a_stroke_of_3_with_a_glow_of_its_own_hue) {
    for (const HaloShape shape : {HaloShape::ring, HaloShape::squircle, HaloShape::rhombus}) {
        const Drawing halo = painted(shape, 40, Color::pink);
        EXPECT_EQ(halo.kind, Drawing::Kind::stroke);
        EXPECT_EQ(halo.color, Color::pink);
        EXPECT_EQ(halo.style, (StrokeStyle{.lineWidth = 3}));
        EXPECT_EQ(halo.shadow, (Shadow{Color::pink.opacity(0.5), 4, {0, 0}}));
        EXPECT_EQ(halo.opacity, 1);
    }
}

TEST(HaloView, the_figure_stands_in_a_frame_6_smaller_in_the_middle) {
    for (const HaloShape shape : {HaloShape::ring, HaloShape::squircle, HaloShape::rhombus}) {
        EXPECT_EQ(painted(shape, 40).path.controlPointBounds(), (CGRect{3, 3, 34, 34}));
    }
}

TEST(HaloView, a_ring_is_a_circle) {
    Path circle;
    circle.addEllipse({3, 3, 34, 34});
    EXPECT_EQ(painted(HaloShape::ring, 40).path, circle);
}

TEST(HaloView, the_corners_of_a_squircle_follow_the_size_of_the_view_and_not_of_its_frame) {
    Path squircle;
    squircle.addContinuousRoundedRect({3, 3, 74, 74}, 20);
    EXPECT_EQ(painted(HaloShape::squircle, 80).path, squircle);
}

TEST(HaloView, a_rhombus_is_the_rhombus_shape_in_the_frame) {
    EXPECT_EQ(painted(HaloShape::rhombus, 40).path, RhombusShape().path({3, 3, 34, 34}));
}

TEST(HaloView,
     a_colour_with_an_opacity_of_its_own_gives_it_to_the_stroke_and_half_of_it_to_the_glow) {
    const Drawing halo = painted(HaloShape::ring, 40, Color(1, 0, 0, 0.6));
    EXPECT_EQ(halo.color, Color(1, 0, 0, 0.6));
    EXPECT_DOUBLE_EQ(halo.shadow->color.resolved().alpha, 0.3);
}

TEST(HaloView, in_a_window_of_another_size_it_keeps_its_own_and_stays_in_the_middle) {
    EXPECT_EQ(painted({HaloShape::ring, Color::cyan, 80}, {40, 40}).path.controlPointBounds(),
              (CGRect{-17, -17, 74, 74}));
    EXPECT_EQ(painted({HaloShape::ring, Color::cyan, 40}, {80, 80}).path.controlPointBounds(),
              (CGRect{23, 23, 34, 34}));
}

TEST(HaloView, at_a_size_of_6_or_less_the_figure_has_none) {
    for (const CGFloat size : {6.0, 4.0, 0.0, -10.0}) {
        for (const HaloShape shape : {HaloShape::ring, HaloShape::squircle, HaloShape::rhombus}) {
            const CGRect bounds =
                painted({shape, Color::cyan, size}, {20, 20}).path.controlPointBounds();
            EXPECT_EQ(bounds, (CGRect{10, 10, 0, 0})) << size;
        }
    }
}

TEST(HaloView, it_is_painted_once_for_each_layout) {
    HaloView view(HaloShape::ring, Color::cyan, 40);
    int requests = 0;
    view.setUpdateRequest([&] { ++requests; });
    view.layout({40, 40}, 1);
    EXPECT_EQ(requests, 1);
    EXPECT_EQ(view.takeDamage().bounds(), (CGRect{0, 0, 40, 40}));
    EXPECT_TRUE(view.takeDamage().isEmpty());
    view.layout({40, 40}, 2);
    EXPECT_EQ(view.takeDamage().bounds(), (CGRect{0, 0, 40, 40}));
}

TEST(RhombusShape, its_points_are_top_right_bottom_left) {
    const Path path = RhombusShape().path({10, 20, 40, 40});
    EXPECT_EQ(path.points(), (Points{{30, 20}, {50, 40}, {30, 60}, {10, 40}}));
    EXPECT_EQ(path.verbs().back(), Path::Verb::close);
}

TEST(RhombusShape, in_a_wide_or_high_rectangle_it_stays_square_and_centred) {
    EXPECT_EQ(RhombusShape().path({0, 0, 100, 40}).points(),
              (Points{{50, 0}, {70, 20}, {50, 40}, {30, 20}}));
    EXPECT_EQ(RhombusShape().path({0, 0, 40, 100}).points(),
              (Points{{20, 30}, {40, 50}, {20, 70}, {0, 50}}));
}

} // namespace quillon::test
