#include "desktop/x11/PixelLayout.h"

#include <gtest/gtest.h>

namespace quillon::test {

using desktop::PixelLayout;

namespace {

PixelRows convert(const PixelLayout& layout, const std::vector<std::uint8_t>& bytes, int width,
                  int height) {
    return layout.convert(bytes, width, height);
}

} // namespace

TEST(PixelLayout, the_unused_byte_of_a_pixel_is_made_opaque) {
    const PixelLayout layout;

    EXPECT_EQ(convert(layout, {0x33, 0x22, 0x11, 0x00, 0x66, 0x55, 0x44, 0x99}, 2, 1),
              (PixelRows{2, 1, {0xFF112233, 0xFF445566}}));
}

TEST(PixelLayout, a_server_of_the_other_byte_order_is_understood) {
    PixelLayout layout;
    layout.byteOrder = std::endian::big;

    EXPECT_EQ(convert(layout, {0x00, 0x11, 0x22, 0x33}, 1, 1), (PixelRows{1, 1, {0xFF112233}}));
}

TEST(PixelLayout, colours_in_another_order_are_put_right) {
    PixelLayout layout;
    layout.masks = {0x0000FF, 0x00FF00, 0xFF0000};

    EXPECT_EQ(convert(layout, {0x11, 0x22, 0x33, 0x00}, 1, 1), (PixelRows{1, 1, {0xFF112233}}));
}

TEST(PixelLayout, few_bits_span_the_whole_range) {
    PixelLayout layout;
    layout.bytesPerPixel = 2;
    layout.masks = {0xF800, 0x07E0, 0x001F};

    // White, black, and half of green.
    EXPECT_EQ(convert(layout, {0xFF, 0xFF, 0x00, 0x00, 0x00, 0x04, 0xAA, 0xAA}, 3, 1),
              (PixelRows{3, 1, {0xFFFFFFFF, 0xFF000000, 0xFF008200}}));
}

TEST(PixelLayout, many_bits_are_brought_down_to_eight) {
    PixelLayout layout;
    layout.masks = {0x3FF00000, 0x000FFC00, 0x000003FF};

    // Red 1023, green 512, blue 0.
    EXPECT_EQ(convert(layout, {0x00, 0x00, 0xF8, 0x3F}, 1, 1), (PixelRows{1, 1, {0xFFFF8000}}));
}

TEST(PixelLayout, rows_begin_at_their_alignment) {
    PixelLayout layout;
    layout.bytesPerPixel = 2;
    layout.masks = {0xF800, 0x07E0, 0x001F};

    EXPECT_EQ(layout.bytesPerRow(1), 4U);
    EXPECT_EQ(layout.bytesPerRow(2), 4U);
    EXPECT_EQ(layout.bytesPerRow(3), 8U);
    EXPECT_EQ(convert(layout, {0xFF, 0xFF, 0x12, 0x34, 0x00, 0xF8, 0x56, 0x78}, 1, 2),
              (PixelRows{1, 2, {0xFFFFFFFF, 0xFFFF0000}}));
}

} // namespace quillon::test
