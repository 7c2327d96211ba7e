#include "spotlight/SpotlightView.h"
#include "support/RecordingContext.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

/// A view of 1000 by 800 points that has been painted once.
SpotlightView viewOf(const SpotlightView::Value& value) {
    SpotlightView view(value);
    view.layout({1000, 800}, 1);
    view.takeDamage();
    return view;
}

std::vector<Drawing> drawn(SpotlightView& view) {
    RecordingContext context;
    view.paint(context, {0, 0, 1000, 800});
    return context.drawings;
}

TEST(SpotlightView, black_fills_the_view_but_for_the_circle) {
    auto view = viewOf({{300, 200}, 150, 0.7});
    const auto drawings = drawn(view);
    ASSERT_EQ(drawings.size(), 1U);
    Path mask;
    mask.addRect({0, 0, 1000, 800});
    mask.addEllipse({150, 50, 300, 300});
    EXPECT_EQ(drawings[0].kind, Drawing::Kind::fillEvenOdd);
    EXPECT_EQ(drawings[0].path, mask);
    EXPECT_EQ(drawings[0].color, Color(0, 0, 0, 0.7));
    EXPECT_EQ(drawings[0].blendMode, BlendMode::normal);
}

TEST(SpotlightView, at_a_corner_the_circle_keeps_its_place_beyond_the_edges) {
    auto view = viewOf({{0, 800}, 100, 1});
    Path mask;
    mask.addRect({0, 0, 1000, 800});
    mask.addEllipse({-100, 700, 200, 200});
    EXPECT_EQ(drawn(view).at(0).path, mask);
}

TEST(SpotlightView, a_move_damages_the_old_and_the_new_circle_and_no_more) {
    auto view = viewOf({{200, 200}, 50, 0.7});
    view.setValue({{800, 600}, 50, 0.7});
    EXPECT_EQ(view.takeDamage().rects(),
              (std::vector<CGRect>{{150, 150, 100, 100}, {750, 550, 100, 100}}));
    EXPECT_TRUE(view.takeDamage().isEmpty());
}

TEST(SpotlightView, a_circle_that_shrinks_damages_its_old_extent) {
    auto view = viewOf({{200, 200}, 50, 0.7});
    view.setValue({{200, 200}, 20, 0.7});
    EXPECT_EQ(view.takeDamage().bounds(), (CGRect{150, 150, 100, 100}));
}

TEST(SpotlightView, another_intensity_damages_everything) {
    auto view = viewOf({{200, 200}, 50, 0.7});
    view.setValue({{200, 200}, 50, 0.6});
    EXPECT_EQ(view.takeDamage().bounds(), (CGRect{0, 0, 1000, 800}));
}

TEST(SpotlightView, the_same_value_again_costs_nothing) {
    auto view = viewOf({{200, 200}, 50, 0.7});
    int requests = 0;
    view.setUpdateRequest([&] { ++requests; });
    view.setValue({{200, 200}, 50, 0.7});
    EXPECT_TRUE(view.takeDamage().isEmpty());
    EXPECT_EQ(requests, 0);
    view.setValue({{201, 200}, 50, 0.7});
    EXPECT_EQ(requests, 1);
}

TEST(SpotlightView, a_stored_radius_below_zero_is_taken_without_its_sign) {
    auto view = viewOf({{200, 200}, -50, 0.7});
    view.setValue({{800, 600}, -50, 0.7});
    EXPECT_EQ(view.takeDamage().rects(),
              (std::vector<CGRect>{{150, 150, 100, 100}, {750, 550, 100, 100}}));
}

} // namespace
} // namespace quillon::test
