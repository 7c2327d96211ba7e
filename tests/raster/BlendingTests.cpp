#include "raster/Blending.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quillon::test {
namespace {

std::uint32_t part(std::uint32_t pixel, int shift) {
    return pixel >> shift & 0xFF;
}

TEST(Blending, every_product_is_divided_by_255_and_rounded) {
    for (std::uint32_t value = 0; value < 256; ++value) {
        for (std::uint32_t factor = 0; factor < 256; ++factor) {
            const std::uint32_t pixel = value << 24 | (255 - value) << 16 | value << 8 | value / 2;
            const std::uint32_t result = scaled(pixel, factor);
            for (const int shift : {0, 8, 16, 24}) {
                ASSERT_EQ(part(result, shift), std::lround(part(pixel, shift) * factor / 255.0));
            }
        }
    }
}

TEST(Blending, what_is_opaque_hides_what_lies_below) {
    EXPECT_EQ(blended(0xFF123456, 0xFFABCDEF, BlendMode::normal), 0xFF123456U);
}

TEST(Blending, what_is_transparent_changes_nothing) {
    EXPECT_EQ(blended(0, 0x80402010, BlendMode::normal), 0x80402010U);
    EXPECT_EQ(blended(0, 0x80402010, BlendMode::plusLighter), 0x80402010U);
}

TEST(Blending, of_what_lies_below_as_much_is_seen_as_is_let_through) {
    EXPECT_EQ(blended(0x80800000, 0xFF0000FF, BlendMode::normal), 0xFF80007FU);
    EXPECT_EQ(blended(0x40004000, 0x80800000, BlendMode::normal), 0xA0604000U);
}

TEST(Blending, no_part_overflows_into_the_next) {
    for (std::uint32_t alpha = 0; alpha < 256; ++alpha) {
        const std::uint32_t white = alpha << 24 | alpha << 16 | alpha << 8 | alpha;
        EXPECT_EQ(blended(white, 0xFFFFFFFF, BlendMode::normal), 0xFFFFFFFFU);
        EXPECT_EQ(blended(white, 0xFFFFFFFF, BlendMode::plusLighter), 0xFFFFFFFFU);
    }
}

TEST(Blending, plus_adds_each_part_up_to_the_brightest) {
    EXPECT_EQ(blended(0x10203040, 0x01020304, BlendMode::plusLighter), 0x11223344U);
    EXPECT_EQ(blended(0xF0F0F0F0, 0x20100F0E, BlendMode::plusLighter), 0xFFFFFFFEU);
}

TEST(Blending, a_colour_is_multiplied_by_its_alpha_and_its_opacity) {
    EXPECT_EQ(premultipliedPixel(Color(1, 0.5, 0), 1), 0xFFFF8000U);
    EXPECT_EQ(premultipliedPixel(Color(1, 0.5, 0, 0.5), 1), 0x80804000U);
    EXPECT_EQ(premultipliedPixel(Color(1, 0.5, 0, 0.5), 0.5), 0x40402000U);
    EXPECT_EQ(premultipliedPixel(Color::white, 0), 0U);
}

TEST(Blending, nothing_is_brighter_than_white_or_darker_than_black) {
    EXPECT_EQ(premultipliedPixel(Color(3, -1, 0.5, 7), 2), 0xFFFF0080U);
    EXPECT_EQ(premultipliedPixel(Color(1, 1, 1, -2), 1), 0U);
}

TEST(Blending, no_part_of_a_premultiplied_colour_exceeds_its_alpha) {
    for (int step = 0; step <= 1000; ++step) {
        const std::uint32_t pixel = premultipliedPixel(Color(1, 0.999, 0.5), step / 1000.0);
        EXPECT_LE(part(pixel, 16), part(pixel, 24));
        EXPECT_LE(part(pixel, 8), part(pixel, 24));
    }
}

} // namespace
} // namespace quillon::test
