#include "spotlight/SpotlightView.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

/// A view of 1000 by 800 points that has been painted once.
struct SpotlightViewTest : testing::Test {
    void show(const SpotlightView::Value& value) {
        view = std::make_unique<SpotlightView>(value);
        view->layout({1000, 800}, 1);
        view->takeDamage();
    }
    std::vector<Drawing> drawn(const CGRect& rect = {0, 0, 1000, 800}) {
        RecordingContext context;
        view->paint(context, rect);
        return context.drawings;
    }

    /// Of radius 50 at (200, 200) and at (800, 600).
    void expectDamageOfTwoCircles() {
        const Damage damage = view->takeDamage();
        CGRect first;
        CGRect second;
        for (const CGRect& rect : damage.rects()) {
            CGRect& circle = rect.x < 500 ? first : second;
            circle = circle == CGRect() ? rect : circle.unite(rect);
        }
        EXPECT_EQ(first, (CGRect{149, 149, 102, 102}));
        EXPECT_EQ(second, (CGRect{749, 549, 102, 102}));
    }

    FakeHost host;
    std::unique_ptr<SpotlightView> view;
};

TEST_F(SpotlightViewTest, black_of_the_intensity_fills_the_view_but_for_the_circle) {
    show({{300, 200}, 150, 0.7});
    const auto drawings = drawn();
    ASSERT_EQ(drawings.size(), 5U);
    for (std::size_t side = 0; side < 4; ++side) {
        EXPECT_EQ(drawings[side].kind, Drawing::Kind::fillRect);
        EXPECT_EQ(drawings[side].color, Color(0, 0, 0, 0.7));
    }
    EXPECT_EQ(drawings[4].kind, Drawing::Kind::bitmap);
    EXPECT_EQ(drawings[4].rect, (CGRect{148, 48, 304, 304}));
    EXPECT_EQ(drawings[4].at, (CGPoint{148, 48}));
    const auto& square = host.graphics.lastBitmap->context.drawings;
    ASSERT_EQ(square.size(), 1U);
    Path mask;
    mask.addRect({0, 0, 304, 304});
    mask.addEllipse({2, 2, 300, 300});
    EXPECT_EQ(square[0].kind, Drawing::Kind::fillEvenOdd);
    EXPECT_EQ(square[0].path, mask);
    EXPECT_EQ(square[0].color, Color(0, 0, 0, 0.7));
}

TEST_F(SpotlightViewTest, at_a_corner_the_part_of_the_circle_beyond_it_is_not_shown) {
    show({{0, 800}, 100, 1});
    const auto drawings = drawn();
    EXPECT_EQ(drawings.back().rect, (CGRect{0, 698, 102, 102}));
    EXPECT_EQ(drawings.back().at, (CGPoint{-102, 698}));
}

TEST_F(SpotlightViewTest, a_radius_beyond_the_screen_leaves_nothing_dimmed) {
    show({{500, 400}, 5000, 1});
    const auto drawings = drawn();
    ASSERT_EQ(drawings.size(), 1U);
    Path mask;
    mask.addRect({0, 0, 1000, 800});
    mask.addEllipse({-4500, -4600, 10000, 10000});
    EXPECT_EQ(drawings[0].kind, Drawing::Kind::fillEvenOdd);
    EXPECT_EQ(drawings[0].path, mask);
}

TEST_F(SpotlightViewTest, the_square_round_the_circle_is_painted_once_for_many_places) {
    show({{300, 200}, 150, 0.7});
    drawn();
    const auto* square = host.graphics.lastBitmap;
    view->setValue({{310, 190}, 150, 0.7});
    drawn();
    EXPECT_EQ(host.graphics.lastBitmap, square);
    view->setValue({{310, 190}, 140, 0.7});
    drawn();
    EXPECT_EQ(host.graphics.lastBitmap->size(), (CGSize{284, 284}));
}

TEST_F(SpotlightViewTest, at_a_broken_scale_it_is_one_square_for_all_whole_pixels) {
    show({{300, 200}, 150, 0.7});
    view->layout({1000, 800}, 1.25);
    const auto square = view->stampedPicture()->stamp;
    for (int pixel = 300; pixel < 600; ++pixel) {
        const CGFloat fromBelow = 800 - pixel / 1.25;
        view->setValue({{pixel / 1.25, 800 - fromBelow}, 150, 0.7});
        const auto picture = view->stampedPicture();
        ASSERT_EQ(picture->stamp, square) << pixel;
        EXPECT_NEAR(picture->corner.y * 1.25, pixel - 190, 1e-9);
    }
}

TEST_F(SpotlightViewTest, as_a_value_it_is_the_black_and_that_square) {
    show({{300, 200}, 150, 0.7});
    drawn();
    const auto picture = view->stampedPicture();
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->ground, Color(0, 0, 0, 0.7));
    EXPECT_EQ(picture->stamp.get(), host.graphics.lastBitmap);
    EXPECT_EQ(picture->corner, (CGPoint{148, 48}));
    view->setValue({{310, 190}, 150, 0.7});
    EXPECT_EQ(view->stampedPicture()->stamp, picture->stamp);
    EXPECT_EQ(view->stampedPicture()->corner, (CGPoint{158, 38}));
}

TEST_F(SpotlightViewTest, another_look_is_another_square_and_leaves_the_one_before_as_it_was) {
    show({{300, 200}, 150, 0.7});
    const auto before = view->stampedPicture();
    view->setValue({{300, 200}, 150, 0.5});
    const auto after = view->stampedPicture();
    EXPECT_NE(after->stamp, before->stamp);
    EXPECT_EQ(after->ground, Color(0, 0, 0, 0.5));
    EXPECT_EQ(before->stamp->size(), (CGSize{304, 304}));
}

TEST_F(SpotlightViewTest, a_square_too_large_to_keep_is_no_value) {
    show({{300, 200}, 1000, 0.7});
    EXPECT_TRUE(view->stampedPicture());
    view->setValue({{300, 200}, 1001, 0.7});
    EXPECT_FALSE(view->stampedPicture());
    view->layout({1000, 800}, 2);
    view->setValue({{300, 200}, 501, 0.7});
    EXPECT_FALSE(view->stampedPicture());
}

TEST_F(SpotlightViewTest, a_far_move_damages_the_old_and_the_new_circle_and_no_more) {
    show({{200, 200}, 50, 0.7});
    view->setValue({{800, 600}, 50, 0.7});
    expectDamageOfTwoCircles();
    EXPECT_TRUE(view->takeDamage().isEmpty());
}

TEST_F(SpotlightViewTest, a_near_move_damages_little_more_than_the_edges_of_the_two) {
    show({{300, 300}, 150, 0.7});
    view->setValue({{303, 301}, 150, 0.7});
    const Damage damage = view->takeDamage();
    EXPECT_FALSE(damage.intersects({240, 240, 120, 120})) << "the middle stays as it is";
    EXPECT_LT(damage.bounds().width, 306);
    EXPECT_LT(damage.bounds().height, 304);
}

TEST_F(SpotlightViewTest, another_intensity_damages_everything) {
    show({{200, 200}, 50, 0.7});
    view->setValue({{200, 200}, 50, 0.6});
    EXPECT_EQ(view->takeDamage().bounds(), (CGRect{0, 0, 1000, 800}));
}

TEST_F(SpotlightViewTest, the_same_value_again_costs_nothing) {
    show({{200, 200}, 50, 0.7});
    int requests = 0;
    view->setUpdateRequest([&] { ++requests; });
    view->setValue({{200, 200}, 50, 0.7});
    EXPECT_TRUE(view->takeDamage().isEmpty());
    EXPECT_EQ(requests, 0);
    view->setValue({{201, 200}, 50, 0.7});
    EXPECT_EQ(requests, 1);
}

TEST_F(SpotlightViewTest, a_stored_radius_below_zero_is_taken_without_its_sign) {
    show({{200, 200}, -50, 0.7});
    view->setValue({{800, 600}, -50, 0.7});
    expectDamageOfTwoCircles();
    EXPECT_EQ(drawn().back().rect, (CGRect{748, 548, 104, 104}));
}

} // namespace
} // namespace quillon::test
