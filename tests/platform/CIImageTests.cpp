#include "platform/CIImage.h"

#include "support/FakeScreenCapture.h"

#include <gtest/gtest.h>

namespace quillon::test {

namespace {

struct Frame {
    std::shared_ptr<FakeImageBuffer> buffer = std::make_shared<FakeImageBuffer>(CGSize{640, 480});
    CIImage image{buffer};

    /// The whole of an image as a picture.
    static std::optional<CGImage> render(const CIImage& image) {
        return CIContext().createCGImage(image, image.extent());
    }
};

} // namespace

TEST(CIImage, an_image_of_a_buffer_has_its_extent_and_reads_nothing) {
    Frame frame;

    EXPECT_EQ(frame.image.extent(), (CGRect{0, 0, 640, 480}));
    EXPECT_TRUE(frame.buffer->reads.empty());
}

TEST(CIImage, a_crop_lies_where_it_was_cut_out) {
    Frame frame;

    EXPECT_EQ(frame.image.imageByCroppingToRect({10, 20, 30, 40}).extent(),
              (CGRect{10, 20, 30, 40}));
}

TEST(CIImage, a_crop_is_limited_to_what_there_is) {
    Frame frame;

    EXPECT_EQ(frame.image.imageByCroppingToRect({-10, 470, 30, 40}).extent(),
              (CGRect{0, 470, 20, 10}));
}

TEST(CIImage, enlarging_scales_place_and_size) {
    Frame frame;

    EXPECT_EQ(
        frame.image.imageByCroppingToRect({10, 20, 30, 40}).imageByApplyingTransform(4).extent(),
        (CGRect{40, 80, 120, 160}));
}

TEST(CIImage, a_crop_after_an_enlargement_is_in_enlarged_pixels) {
    Frame frame;

    const CIImage image =
        frame.image.imageByApplyingTransform(2).imageByCroppingToRect({20, 40, 60, 80});

    EXPECT_EQ(image.extent(), (CGRect{20, 40, 60, 80}));
    ASSERT_TRUE(Frame::render(image));
    EXPECT_EQ(frame.buffer->reads, (std::vector<CGRect>{{10, 20, 30, 40}}));
}

TEST(CIContext, only_the_pixels_of_the_crop_are_read) {
    Frame frame;

    ASSERT_TRUE(Frame::render(frame.image.imageByCroppingToRect({10, 20, 30, 40})));

    EXPECT_EQ(frame.buffer->reads, (std::vector<CGRect>{{10, 20, 30, 40}}));
}

TEST(CIContext, rows_come_from_the_top) {
    Frame frame;

    const auto picture = Frame::render(frame.image.imageByCroppingToRect({5, 7, 2, 2}));

    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->part, (CGRect{0, 0, 2, 2}));
    EXPECT_EQ(*picture->rows,
              (PixelRows{2,
                         2,
                         {FakeImageBuffer::pixelAt(5, 8), FakeImageBuffer::pixelAt(6, 8),
                          FakeImageBuffer::pixelAt(5, 7), FakeImageBuffer::pixelAt(6, 7)}}));
}

TEST(CIContext, an_edge_inside_of_a_pixel_shows_a_part_of_it) {
    Frame frame;

    const auto picture = Frame::render(frame.image.imageByCroppingToRect({5.25, 7.5, 2, 2.25}));

    ASSERT_TRUE(picture);
    EXPECT_EQ(frame.buffer->reads, (std::vector<CGRect>{{5, 7, 3, 3}}));
    // A quarter of the topmost row lies above the picture, half of the lowest one below.
    EXPECT_EQ(picture->part, (CGRect{0.25, 0.25, 2, 2.25}));
}

TEST(CIContext, an_enlarged_image_keeps_the_pixels_of_its_buffer) {
    Frame frame;
    const CIImage crop = frame.image.imageByCroppingToRect({10, 20, 30, 40});

    const auto plain = Frame::render(crop);
    const auto enlarged = Frame::render(crop.imageByApplyingTransform(8));

    ASSERT_TRUE(plain && enlarged);
    EXPECT_EQ(*enlarged, *plain);
}

TEST(CIContext, an_empty_part_gives_no_picture) {
    Frame frame;

    EXPECT_FALSE(CIContext().createCGImage(frame.image, {640, 0, 10, 10}));
    EXPECT_FALSE(Frame::render(frame.image.imageByCroppingToRect({-50, 0, 50, 50})));
    EXPECT_TRUE(frame.buffer->reads.empty());
}

TEST(CIContext, pixels_that_cannot_be_had_give_no_picture) {
    Frame frame;
    frame.buffer->isReadable = false;

    EXPECT_FALSE(Frame::render(frame.image));
}

TEST(CGImage, pictures_are_equal_when_the_same_is_to_be_seen) {
    Frame frame;
    const CIImage crop = frame.image.imageByCroppingToRect({10, 20, 30, 40});

    const auto first = Frame::render(crop);
    const auto second = Frame::render(crop);
    const auto other = Frame::render(frame.image.imageByCroppingToRect({11, 20, 30, 40}));
    const auto shifted = Frame::render(frame.image.imageByCroppingToRect({10.5, 20, 29.5, 40}));

    ASSERT_TRUE(first && second && other && shifted);
    EXPECT_EQ(*first, *second);
    EXPECT_NE(*first, *other);
    EXPECT_NE(*first, *shifted);
}

} // namespace quillon::test
