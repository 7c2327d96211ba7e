#include "spotlight/ZoomView.h"
#include "support/RecordingContext.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

NSImage imageOf(CGSize size, std::uint32_t pixel = 0xFF336699) {
    const auto width = static_cast<int>(size.width);
    const auto height = static_cast<int>(size.height);
    const auto count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    const auto rows = std::make_shared<PixelRows>(
        PixelRows{width, height, std::vector<std::uint32_t>(count, pixel)});
    return {{rows, {0, 0, size.width, size.height}}, size};
}

/// A lens of 200 points that has been painted once.
ZoomView lensOf(ZoomView::Value value) {
    ZoomView view(std::move(value));
    view.layout({200, 200}, 1);
    view.takeDamage();
    return view;
}

std::vector<Drawing> drawn(ZoomView& view) {
    RecordingContext context;
    view.paint(context, {0, 0, 200, 200});
    return context.drawings;
}

Path roundedShape() {
    Path shape;
    shape.addContinuousRoundedRect({0, 0, 200, 200}, 12);
    return shape;
}

Path square() {
    Path path;
    path.addRect({0, 0, 200, 200});
    return path;
}

TEST(ZoomView, without_a_picture_it_shows_a_line_of_text_on_black) {
    auto view = lensOf({2, std::nullopt, false});
    const auto drawings = drawn(view);
    ASSERT_EQ(drawings.size(), 4U);
    EXPECT_EQ(drawings[0].kind, Drawing::Kind::fill);
    EXPECT_EQ(drawings[0].path, square());
    EXPECT_EQ(drawings[0].color, Color::black);
    EXPECT_EQ(drawings[1].kind, Drawing::Kind::text);
    EXPECT_EQ(drawings[1].text, (Text{"Waiting for screen capture...", 10, Color(1, 1, 1, 0.5)}));
    EXPECT_EQ(drawings[1].at, (CGPoint{100, 100}));
    EXPECT_EQ(drawings[1].anchor, Anchor::center);
}

TEST(ZoomView, a_picture_takes_the_place_of_the_text) {
    const NSImage image = imageOf({200, 200});
    auto view = lensOf({2, image, false});
    const auto drawings = drawn(view);
    ASSERT_EQ(drawings.size(), 3U);
    EXPECT_EQ(drawings[0].kind, Drawing::Kind::image);
    EXPECT_EQ(drawings[0].image, image.image);
    EXPECT_EQ(drawings[0].rect, (CGRect{0, 0, 200, 200}));
}

TEST(ZoomView, a_picture_cut_off_at_an_edge_of_the_screen_is_shown_whole_and_in_proportion) {
    auto view = lensOf({2, imageOf({100, 200}), false});
    EXPECT_EQ(drawn(view).at(0).rect, (CGRect{50, 0, 100, 200}));
}

TEST(ZoomView, the_factor_changes_nothing_in_the_view) {
    auto two = lensOf({2, imageOf({100, 200}), false});
    auto eight = lensOf({8, imageOf({100, 200}), false});
    EXPECT_EQ(drawn(two).at(0).rect, drawn(eight).at(0).rect);
}

TEST(ZoomView, the_crosshair_has_four_arms_and_a_gap_round_the_middle) {
    auto view = lensOf({2, imageOf({200, 200}), true});
    const auto drawings = drawn(view);
    ASSERT_EQ(drawings.size(), 4U);
    Path arms;
    arms.move({80, 100});
    arms.addLine({92, 100});
    arms.move({108, 100});
    arms.addLine({120, 100});
    arms.move({100, 80});
    arms.addLine({100, 92});
    arms.move({100, 108});
    arms.addLine({100, 120});
    EXPECT_EQ(drawings[1].kind, Drawing::Kind::stroke);
    EXPECT_EQ(drawings[1].path, arms);
    EXPECT_EQ(drawings[1].color, Color::white);
    EXPECT_EQ(drawings[1].style, (StrokeStyle{1, LineCap::butt, LineJoin::miter}));
}

TEST(ZoomView, the_corners_are_cut_over_picture_and_crosshair_and_the_outline_lies_on_top) {
    auto view = lensOf({2, imageOf({200, 200}), true});
    const auto drawings = drawn(view);
    Path outside = roundedShape();
    outside.addRect({0, 0, 200, 200});
    EXPECT_EQ(drawings[2].kind, Drawing::Kind::fillEvenOdd);
    EXPECT_EQ(drawings[2].path, outside);
    EXPECT_EQ(drawings[2].color, Color::black);
    EXPECT_EQ(drawings[3].kind, Drawing::Kind::stroke);
    EXPECT_EQ(drawings[3].path, roundedShape());
    EXPECT_EQ(drawings[3].color, Color(1, 1, 1, 0.3));
    EXPECT_EQ(drawings[3].style.lineWidth, 1);
}

TEST(ZoomView, a_new_picture_damages_the_lens_and_the_same_pixels_again_do_not) {
    auto view = lensOf({2, imageOf({4, 4}, 0xFF000001), true});
    view.setValue({2, imageOf({4, 4}, 0xFF000001), true});
    EXPECT_TRUE(view.takeDamage().isEmpty());
    view.setValue({2, imageOf({4, 4}, 0xFF000002), true});
    EXPECT_EQ(view.takeDamage().bounds(), (CGRect{0, 0, 200, 200}));
    view.setValue({2, imageOf({4, 4}, 0xFF000002), false});
    EXPECT_EQ(view.takeDamage().bounds(), (CGRect{0, 0, 200, 200}));
}

} // namespace
} // namespace quillon::test
