#include "raster/PixelPainting.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>

namespace quillon::test {
namespace {

constexpr int kWidth = 6;
constexpr int kHeight = 4;

/// A few pixels whose corner lies at (10, 20) of a view, each with a number of its own.
class PixelPainting : public testing::Test {
protected:
    PixelPainting() {
        for (std::uint32_t index = 0; index < m_pixels.size(); ++index) {
            m_pixels[index] = 0xFF000000 + index;
        }
    }

    PixelCanvas canvas() { return {{10, 20, 10 + kWidth, 20 + kHeight}, m_pixels.data(), kWidth}; }
    std::uint32_t at(int x, int y) { return *canvas().at(x, y); }
    static std::uint32_t untouched(int x, int y) {
        return 0xFF000000 + static_cast<std::uint32_t>((y - 20) * kWidth + (x - 10));
    }
    void expectUntouchedBeside(const PixelRect& rect) {
        for (int y = 20; y < 20 + kHeight; ++y) {
            for (int x = 10; x < 10 + kWidth; ++x) {
                const bool isInside =
                    x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
                if (!isInside) {
                    EXPECT_EQ(at(x, y), untouched(x, y));
                }
            }
        }
    }

private:
    std::array<std::uint32_t, kWidth * kHeight> m_pixels{};
};

TEST_F(PixelPainting, a_part_is_what_lies_in_both) {
    const PixelCanvas part = canvas().part({12, 0, 100, 22});
    EXPECT_EQ(part.place, (PixelRect{12, 20, 16, 22}));
    EXPECT_EQ(*part.at(13, 21), untouched(13, 21));
    EXPECT_TRUE(canvas().part({0, 0, 10, 10}).place.isEmpty());
}

TEST_F(PixelPainting, what_is_cleared_is_transparent_and_the_rest_stays) {
    clearPixels(canvas().part({11, 21, 13, 23}));
    EXPECT_EQ(at(11, 21), 0U);
    EXPECT_EQ(at(12, 22), 0U);
    expectUntouchedBeside({11, 21, 13, 23});
}

TEST_F(PixelPainting, a_fill_blends_with_what_lies_below) {
    clearPixels(canvas().part({11, 21, 12, 22}));
    fillPixels(canvas().part({11, 21, 13, 23}), 0x80800000, BlendMode::normal);
    EXPECT_EQ(at(11, 21), 0x80800000U);
    EXPECT_EQ(at(12, 21) >> 16, 0xFF80U);
    expectUntouchedBeside({11, 21, 13, 23});
}

TEST_F(PixelPainting, a_picture_is_drawn_where_it_lies_as_far_as_the_canvas_goes) {
    std::array<std::uint32_t, 9> pixels{};
    pixels.fill(0xFF00FF00);
    pixels[4] = 0;
    const PixelPicture picture{{9, 20, 12, 23}, pixels.data(), 3};
    drawPixels(picture, canvas(), 255, BlendMode::normal);
    EXPECT_EQ(at(10, 20), 0xFF00FF00U);
    EXPECT_EQ(at(10, 21), untouched(10, 21)) << "a hole";
    EXPECT_EQ(at(11, 22), 0xFF00FF00U);
    expectUntouchedBeside({10, 20, 12, 23});
}

TEST_F(PixelPainting, the_opacity_of_a_picture_is_multiplied_into_it) {
    const std::uint32_t white = 0xFFFFFFFF;
    clearPixels(canvas());
    drawPixels({{10, 20, 11, 21}, &white, 1}, canvas(), 128, BlendMode::normal);
    EXPECT_EQ(at(10, 20), 0x80808080U);
    drawPixels({{10, 20, 11, 21}, &white, 1}, canvas(), 0, BlendMode::normal);
    EXPECT_EQ(at(10, 20), 0x80808080U);
}

TEST_F(PixelPainting, pictures_that_are_added_up_grow_brighter) {
    const std::uint32_t grey = 0x80404040;
    clearPixels(canvas());
    drawPixels({{10, 20, 11, 21}, &grey, 1}, canvas(), 255, BlendMode::plusLighter);
    drawPixels({{10, 20, 11, 21}, &grey, 1}, canvas(), 255, BlendMode::plusLighter);
    EXPECT_EQ(at(10, 20), 0xFF808080U);
}

TEST_F(PixelPainting, a_picture_beside_the_canvas_and_an_empty_one_are_no_harm) {
    const std::uint32_t white = 0xFFFFFFFF;
    drawPixels({{0, 0, 1, 1}, &white, 1}, canvas(), 255, BlendMode::normal);
    drawPixels({}, canvas(), 255, BlendMode::normal);
    fillPixels(canvas().part({0, 0, 1, 1}), white, BlendMode::normal);
    clearPixels({});
    expectUntouchedBeside({});
}

} // namespace
} // namespace quillon::test
