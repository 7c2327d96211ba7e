#include "raster/InkPainting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

namespace quillon::test {
namespace {

constexpr std::uint32_t kBlack = 0xFF000000;
constexpr std::uint32_t kWhite = 0xFFFFFFFF;

/// A picture in memory with a margin that no paint may reach.
class Picture {
public:
    explicit Picture(const PixelRect& place, std::uint32_t ground = 0)
        : m_place(place)
        , m_pixels(static_cast<std::size_t>(rowLength() * (place.height() + 2)), kMargin) {
        for (int y = place.top; y < place.bottom; ++y) {
            std::fill_n(canvas().at(place.left, y), place.width(), ground);
        }
    }

    PixelCanvas canvas() { return {m_place, m_pixels.data() + rowLength() + 1, rowLength()}; }
    std::uint32_t at(int x, int y) { return *canvas().at(x, y); }
    int alphaAt(int x, int y) { return static_cast<int>(at(x, y) >> 24); }

    bool isMarginUntouched() const {
        return std::ranges::count(m_pixels, kMargin) ==
               static_cast<std::ptrdiff_t>(m_pixels.size()) - m_place.width() * m_place.height();
    }

private:
    static constexpr std::uint32_t kMargin = 0x12345678;

    std::ptrdiff_t rowLength() const { return m_place.width() + 2; }

    PixelRect m_place;
    std::vector<std::uint32_t> m_pixels;
};

/// The width of the ink in points.
void paint(const Path& path, Ink ink, CGFloat scale, const PixelCanvas& canvas) {
    ink.lineWidth *= scale;
    paintInk(flattened(path, scale), ink, canvas);
}

Path line(CGPoint start, CGPoint end) {
    Path path;
    path.move(start);
    path.addLine(end);
    return path;
}

TEST(InkPainting, a_line_along_pixels_fills_them_and_no_others) {
    Picture picture({0, 0, 40, 20});
    paint(line({10, 10}, {30, 10}), {kBlack, 4}, 1, picture.canvas());
    for (const int y : {8, 9, 10, 11}) {
        EXPECT_EQ(picture.at(20, y), kBlack);
    }
    EXPECT_EQ(picture.at(20, 7), 0U);
    EXPECT_EQ(picture.at(20, 12), 0U);
}

TEST(InkPainting, a_pixel_at_the_edge_is_covered_by_as_much_as_lies_in_the_line) {
    Picture picture({0, 0, 40, 20});
    paint(line({10, 10.25}, {30, 10.25}), {kBlack, 4}, 1, picture.canvas());
    EXPECT_NEAR(picture.alphaAt(20, 8), 255 * 0.75, 1);
    EXPECT_EQ(picture.alphaAt(20, 9), 255);
    EXPECT_NEAR(picture.alphaAt(20, 12), 255 * 0.25, 1);
}

TEST(InkPainting, ends_and_corners_are_round) {
    Picture picture({0, 0, 60, 60});
    Path path = line({20, 40}, {40, 40});
    path.addLine({40, 20});
    paint(path, {kBlack, 20}, 1, picture.canvas());
    EXPECT_EQ(picture.alphaAt(11, 40), 255);
    EXPECT_EQ(picture.alphaAt(9, 40), 0);
    EXPECT_EQ(picture.alphaAt(11, 49), 0);
    EXPECT_EQ(picture.alphaAt(46, 46), 255);
    EXPECT_EQ(picture.alphaAt(48, 48), 0);
}

TEST(InkPainting, a_line_of_no_length_is_a_dot) {
    Picture picture({0, 0, 20, 20});
    paint(line({10, 10}, {10, 10}), {kBlack, 6}, 1, picture.canvas());
    EXPECT_EQ(picture.alphaAt(10, 10), 255);
    EXPECT_EQ(picture.alphaAt(10, 11), 255);
    EXPECT_EQ(picture.alphaAt(10, 14), 0);
    EXPECT_EQ(picture.alphaAt(12, 12), picture.alphaAt(7, 7));
}

TEST(InkPainting, no_line_is_thinner_than_a_device_pixel) {
    Picture thin({0, 0, 20, 20});
    paint(line({5, 10.5}, {15, 10.5}), {kBlack, 0.1}, 1, thin.canvas());
    EXPECT_EQ(thin.at(10, 10), kBlack);
    Picture none({0, 0, 20, 20});
    paint(line({5, 10.5}, {15, 10.5}), {kBlack, -3}, 1, none.canvas());
    EXPECT_EQ(none.at(10, 10), kBlack);
}

TEST(InkPainting, a_scale_magnifies_place_and_width) {
    Picture picture({0, 0, 40, 40});
    paint(line({5, 5}, {15, 5}), {kBlack, 4}, 2, picture.canvas());
    EXPECT_EQ(picture.at(20, 6), kBlack);
    EXPECT_EQ(picture.at(20, 13), kBlack);
    EXPECT_EQ(picture.at(20, 5), 0U);
    EXPECT_EQ(picture.at(20, 14), 0U);
}

TEST(InkPainting, where_a_translucent_line_crosses_itself_it_is_no_darker) {
    Picture picture({0, 0, 40, 40});
    Path path = line({5, 20}, {35, 20});
    path.addLine({35, 5});
    path.addLine({20, 5});
    path.addLine({20, 35});
    paint(path, {0x80000000, 6}, 1, picture.canvas());
    EXPECT_EQ(picture.at(20, 20), 0x80000000U);
    EXPECT_EQ(picture.at(10, 20), 0x80000000U);
}

TEST(InkPainting, translucent_ink_lets_through_what_stands_below) {
    Picture picture({0, 0, 20, 20}, kWhite);
    paint(line({5, 10}, {15, 10}), {0x80800000, 6}, 1, picture.canvas());
    EXPECT_EQ(picture.at(10, 10), 0xFFFF7F7FU);
    Picture opaque({0, 0, 20, 20}, kWhite);
    paint(line({5, 10}, {15, 10}), {0xFF336699, 6}, 1, opaque.canvas());
    EXPECT_EQ(opaque.at(10, 10), 0xFF336699U);
}

TEST(InkPainting, plus_adds_up_and_ends_at_the_brightest) {
    Picture picture({0, 0, 20, 20}, 0xC0104080);
    paint(line({5, 10}, {15, 10}), {0x80305090, 6, BlendMode::plusLighter}, 1, picture.canvas());
    EXPECT_EQ(picture.at(10, 10), 0xFF4090FFU);
}

TEST(InkPainting, coverage_multiplies_all_parts_of_a_colour_alike) {
    for (const CGFloat offset : {0.1, 0.25, 0.5, 0.7, 0.9}) {
        Picture picture({0, 0, 20, 20}, 0xFF204060);
        paint(line({5, 10 + offset}, {15, 10 + offset}), {0xC0906030, 4}, 1, picture.canvas());
        const double covered = 1 - offset;
        const auto expected = [&](double ink, double ground) {
            return ink * covered + ground * (1 - 0xC0 / 255.0 * covered);
        };
        const std::uint32_t pixel = picture.at(10, 8);
        EXPECT_NEAR(pixel >> 16 & 0xFF, expected(0x90, 0x20), 1.5);
        EXPECT_NEAR(pixel >> 8 & 0xFF, expected(0x60, 0x40), 1.5);
        EXPECT_NEAR(pixel & 0xFF, expected(0x30, 0x60), 1.5);
        EXPECT_EQ(pixel >> 24, 255U);
    }
}

/// Curves and lines of every size, over several tiles.
class RandomPath {
public:
    Path next() {
        Path path;
        path.move(place());
        for (int pieces = 1 + pick(8); pieces > 0; --pieces) {
            switch (pick(5)) {
            case 0:
                path.addLine(place());
                break;
            case 1:
                path.move(place());
                path.addLine(path.points().back());
                break;
            case 2:
                path.closeSubpath();
                break;
            default:
                path.addCurve(place(), place(), place());
            }
        }
        return path;
    }
    CGFloat width() { return 0.5 + pick(300) / 10.0; }
    PixelRect rect() {
        const int left = pick(150);
        const int top = pick(100);
        return {left, top, left + 1 + pick(150), top + 1 + pick(100)};
    }

private:
    int pick(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    CGPoint place() { return {pick(4000) / 10.0 - 50, pick(3000) / 10.0 - 50}; }

    std::mt19937 m_random{11};
};

TEST(InkPainting, every_part_has_the_pixels_of_the_whole_and_nothing_beside_it_is_touched) {
    RandomPath random;
    for (int round = 0; round < 150; ++round) {
        const Path path = random.next();
        const Ink ink{0xA0503010, random.width()};
        const CGFloat scale = round % 3 == 0 ? 1.25 : 1;
        Picture whole({0, 0, 300, 200}, 0x40102030);
        paint(path, ink, scale, whole.canvas());
        EXPECT_TRUE(whole.isMarginUntouched());
        const PixelRect rect = random.rect();
        Picture part(rect, 0x40102030);
        paint(path, ink, scale, part.canvas());
        EXPECT_TRUE(part.isMarginUntouched());
        for (int y = rect.top; y < std::min(rect.bottom, 200); ++y) {
            for (int x = rect.left; x < std::min(rect.right, 300); ++x) {
                ASSERT_EQ(part.at(x, y), whole.at(x, y)) << "round " << round;
            }
        }
    }
}

TEST(InkPainting, on_a_canvas_left_of_and_above_the_view_it_is_the_same_line) {
    Picture picture({-30, -20, 10, 20});
    paint(line({-20, -10}, {5, -10}), {kBlack, 4}, 1, picture.canvas());
    EXPECT_EQ(picture.at(-10, -10), kBlack);
    EXPECT_EQ(picture.at(-10, -13), 0U);
    EXPECT_EQ(picture.at(-25, -10), 0U);
}

TEST(InkPainting, an_empty_canvas_and_a_path_without_lines_are_no_harm) {
    Picture picture({0, 0, 10, 10});
    paint(Path(), {kBlack, 4}, 1, picture.canvas());
    Path place;
    place.move({5, 5});
    paint(place, {kBlack, 4}, 1, picture.canvas());
    EXPECT_EQ(picture.at(5, 5), 0U);
    PixelCanvas empty = picture.canvas();
    empty.place = {5, 5, 5, 5};
    paint(line({0, 5}, {10, 5}), {kBlack, 4}, 1, empty);
    EXPECT_EQ(picture.at(5, 5), 0U);
}

TEST(InkPainting, places_without_measure_are_no_harm) {
    constexpr CGFloat infinite = std::numeric_limits<CGFloat>::infinity();
    Picture picture({0, 0, 20, 20});
    for (const CGFloat far :
         {1e6, 1e30, 1e300, infinite, -infinite, std::numeric_limits<CGFloat>::quiet_NaN()}) {
        paint(line({5, 5}, {far, far}), {kBlack, 4}, 1, picture.canvas());
        paint(line({-far, 5}, {far, -far}), {kBlack, far}, 2, picture.canvas());
    }
    EXPECT_TRUE(picture.isMarginUntouched());
}

} // namespace
} // namespace quillon::test
