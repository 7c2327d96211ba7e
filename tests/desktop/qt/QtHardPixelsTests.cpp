#include "desktop/qt/QtConversions.h"
#include "desktop/qt/QtGraphicsContext.h"
#include "platform/CGImage.h"

#include <gtest/gtest.h>

#include <QImage>

#include <functional>

namespace quillon::test {

using namespace desktop;

namespace {

constexpr QRgb red = 0xFFFF0000;
constexpr QRgb green = 0xFF00FF00;
constexpr QRgb blue = 0xFF0000FF;
constexpr QRgb white = 0xFFFFFFFF;
constexpr QRgb nothing = 0;

/// Four pixels: red and green above, blue and white below.
CGImage fourPixels() {
    return {std::make_shared<PixelRows>(PixelRows{2, 2, {red, green, blue, white}}), {0, 0, 2, 2}};
}

/// A picture of 20 points on each side.
QImage painted(CGFloat scale, const std::function<void(GraphicsContext&)>& body) {
    const int pixels = static_cast<int>(20 * scale);
    QImage picture(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QtGraphicsContext context(canvasOf(picture), picture.rect(), scale);
    body(context);
    return picture;
}

/// Expects one colour in a rectangle of the picture, given as left, top, right and bottom pixel.
void expectColor(const QImage& picture, const QRect& place, QRgb color) {
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            ASSERT_EQ(picture.pixel(x, y), color) << "at " << x << ", " << y;
        }
    }
}

} // namespace

TEST(QtHardPixels, a_line_of_half_a_point_is_one_pixel_wide_where_two_make_a_point) {
    const QImage picture = painted(2, [](GraphicsContext& context) {
        Path line;
        line.move({2, 10.25});
        line.addLine({18, 10.25});
        context.stroke(line, Color(1, 0, 0), {.lineWidth = 0.5});
    });
    constexpr int faint = 8;
    EXPECT_LT(qAlpha(picture.pixel(20, 19)), faint);
    EXPECT_GT(qAlpha(picture.pixel(20, 20)), 255 - faint);
    EXPECT_LT(qAlpha(picture.pixel(20, 21)), faint);
}

TEST(QtHardPixels, each_pixel_becomes_a_square_of_one_colour) {
    const QImage picture = painted(1, [](GraphicsContext& context) {
        context.draw(fourPixels(), {2, 2, 16, 16});
    });

    expectColor(picture, {2, 2, 8, 8}, red);
    expectColor(picture, {10, 2, 8, 8}, green);
    expectColor(picture, {2, 10, 8, 8}, blue);
    expectColor(picture, {10, 10, 8, 8}, white);
    expectColor(picture, {0, 0, 20, 2}, nothing);
    expectColor(picture, {18, 0, 2, 20}, nothing);
}

TEST(QtHardPixels, the_squares_are_hard_on_a_screen_of_double_scale_too) {
    const QImage picture = painted(2, [](GraphicsContext& context) {
        context.draw(fourPixels(), {2, 2, 16, 16});
    });

    expectColor(picture, {4, 4, 16, 16}, red);
    expectColor(picture, {20, 4, 16, 16}, green);
    expectColor(picture, {4, 20, 16, 16}, blue);
    expectColor(picture, {20, 20, 16, 16}, white);
}

TEST(QtHardPixels, a_part_that_begins_inside_of_a_pixel_shows_less_of_it) {
    CGImage image = fourPixels();
    image.part = {0.5, 0, 1.5, 2};

    const QImage picture = painted(1, [&](GraphicsContext& context) {
        context.draw(image, {0, 0, 12, 16});
    });

    expectColor(picture, {0, 0, 4, 8}, red);
    expectColor(picture, {4, 0, 8, 8}, green);
    expectColor(picture, {0, 8, 4, 8}, blue);
    expectColor(picture, {4, 8, 8, 8}, white);
}

TEST(QtHardPixels, an_edge_between_device_pixels_stays_hard) {
    const QImage picture = painted(1, [](GraphicsContext& context) {
        context.draw(fourPixels(), {2.25, 2.25, 16, 16});
    });

    for (int x = 0; x < 20; ++x) {
        const QRgb color = picture.pixel(x, 5);
        EXPECT_TRUE(color == red || color == green || color == nothing) << "at " << x;
    }
}

TEST(QtHardPixels, a_layer_gives_the_same_pixels) {
    const auto draw = [](GraphicsContext& context) { context.draw(fourPixels(), {2, 2, 16, 16}); };
    const QImage direct = painted(1, draw);
    const QImage layered = painted(1, [&](GraphicsContext& context) { context.drawLayer(draw); });
    const QImage twice = painted(1, [&](GraphicsContext& context) {
        context.drawLayer([&](GraphicsContext& layer) {
            draw(layer);
            draw(layer);
        });
    });

    EXPECT_EQ(layered, direct);
    EXPECT_EQ(twice, direct);
}

} // namespace quillon::test
