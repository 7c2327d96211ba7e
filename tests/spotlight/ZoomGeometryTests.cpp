#include "spotlight/ZoomCaptureCoordinates.h"
#include "spotlight/ZoomGeometry.h"

#include <gtest/gtest.h>

namespace quillon::test {

TEST(ZoomCaptureCoordinates, an_image_point_counts_pixels_from_the_bottom_left_of_the_screen) {
    const CGRect screen{-1280, 200, 1280, 1024};
    EXPECT_EQ(ZoomCaptureCoordinates::imagePoint({-1280, 200}, screen, 2), (CGPoint{0, 0}));
    // Nothing is flipped: the top of the screen is the top of the image.
    EXPECT_EQ(ZoomCaptureCoordinates::imagePoint({-1180, 1224}, screen, 2), (CGPoint{200, 2048}));
}

TEST(ZoomCaptureCoordinates, a_point_off_the_screen_lies_off_the_image) {
    EXPECT_EQ(ZoomCaptureCoordinates::imagePoint({-10, 1090}, {0, 0, 1920, 1080}, 1.5),
              (CGPoint{-15, 1635}));
}

TEST(ZoomGeometry, the_captured_square_has_the_pointer_at_its_centre) {
    EXPECT_EQ(zoomCaptureRect({960, 540}, 200, 2, 2), (CGRect{860, 440, 200, 200}));
    EXPECT_EQ(zoomCaptureRect({960, 540}, 200, 8, 2), (CGRect{935, 515, 50, 50}));
    EXPECT_EQ(zoomCaptureRect({960, 540}, 200, 2, 1), (CGRect{910, 490, 100, 100}));
}

TEST(ZoomGeometry, the_captured_square_may_lie_between_pixels) {
    const CGRect rect = zoomCaptureRect({100, 100}, 200, 1.5, 1);
    EXPECT_DOUBLE_EQ(rect.width, 400.0 / 3);
    EXPECT_DOUBLE_EQ(rect.midX(), 100);
}

TEST(ZoomGeometry, the_lens_stands_to_the_lower_right_of_the_pointer) {
    EXPECT_EQ(zoomLensFrame({500, 600}, 200, {30, 40}, std::nullopt), (CGRect{530, 360, 200, 200}));
}

TEST(ZoomGeometry, offsets_below_zero_put_it_to_the_upper_left) {
    EXPECT_EQ(zoomLensFrame({500, 600}, 200, {-230, -230}, std::nullopt),
              (CGRect{270, 630, 200, 200}));
}

TEST(ZoomGeometry, the_visible_frame_holds_the_lens_at_each_of_its_edges) {
    const CGRect visible{0, 40, 1920, 1010};
    EXPECT_EQ(zoomLensFrame({1900, 600}, 200, {30, 30}, visible), (CGRect{1720, 370, 200, 200}));
    // Low down the lens may cover the pointer.
    EXPECT_EQ(zoomLensFrame({500, 100}, 200, {30, 30}, visible), (CGRect{530, 40, 200, 200}));
    EXPECT_EQ(zoomLensFrame({-900, 600}, 200, {30, 30}, visible), (CGRect{0, 370, 200, 200}));
    EXPECT_EQ(zoomLensFrame({500, 2000}, 200, {30, 30}, visible), (CGRect{530, 850, 200, 200}));
}

TEST(ZoomGeometry, where_the_lens_is_larger_than_the_frame_the_left_and_the_lower_edge_win) {
    EXPECT_EQ(zoomLensFrame({150, 250}, 400, {30, 30}, CGRect{100, 200, 300, 250}),
              (CGRect{100, 200, 400, 400}));
}

TEST(ZoomGeometry, what_is_fitted_keeps_its_proportions_in_the_middle) {
    const CGRect bounds{0, 0, 200, 200};
    EXPECT_EQ(aspectFit({400, 400}, bounds), bounds);
    EXPECT_EQ(aspectFit({100, 200}, bounds), (CGRect{50, 0, 100, 200}));
    EXPECT_EQ(aspectFit({400, 100}, bounds), (CGRect{0, 75, 200, 50}));
    EXPECT_EQ(aspectFit({10, 20}, bounds), (CGRect{50, 0, 100, 200}));
}

TEST(ZoomGeometry, what_has_no_size_is_fitted_into_nothing) {
    EXPECT_TRUE(aspectFit({0, 0}, {0, 0, 200, 200}).isEmpty());
    EXPECT_TRUE(aspectFit({5, 0}, {0, 0, 200, 200}).isEmpty());
}

} // namespace quillon::test
