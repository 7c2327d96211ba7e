#include "desktop/qt/Blur.h"
#include "desktop/qt/QtConversions.h"
#include "desktop/qt/QtGraphicsContext.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quillon::test {

using namespace desktop;

namespace {

QImage transparent(int side) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

int alphaSum(const QImage& image) {
    int sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            sum += qAlpha(image.pixel(x, y));
        }
    }
    return sum;
}

/// A horizontal line through the middle of 100 points, 3 thick, with a red shadow below its blue.
QImage lineWithShadow(const Color& line, const Color& shadow, qreal scale = 1) {
    QImage image = transparent(qRound(100 * scale));
    QtGraphicsContext context(canvasOf(image), image.rect(), scale);
    Path path;
    path.move({-50, 50.5});
    path.addLine({150, 50.5});
    context.strokeWithShadow(path, line, {.lineWidth = 3}, {shadow, 4, {}});
    return image;
}

/// How much of a band of 3 lies under a Gaussian of deviation 2, so far from its middle.
double shareOfBand(double distance) {
    const auto below = [](double place) { return std::erfc(-place / 2 / std::sqrt(2.0)) / 2; };
    return below(distance + 1.5) - below(distance - 1.5);
}

} // namespace

TEST(Blur, it_spreads_what_there_is_evenly_and_loses_none_of_it) {
    QImage picture = transparent(41);
    picture.setPixelColor(20, 20, Qt::black);
    const QImage spread = blurred(picture, 1);
    EXPECT_NEAR(alphaSum(spread), 255, 8);
    EXPECT_NEAR(qAlpha(spread.pixel(20, 20)), 255 / (2 * 3.14159), 1.5);
    EXPECT_EQ(spread.pixel(22, 20), spread.pixel(18, 20));
    EXPECT_EQ(spread.pixel(22, 20), spread.pixel(20, 22));
    EXPECT_EQ(qAlpha(spread.pixel(25, 20)), 0);
}

TEST(Blur, without_a_deviation_the_picture_stays_as_it_is) {
    QImage picture = transparent(5);
    picture.setPixelColor(2, 2, Qt::black);
    EXPECT_EQ(blurred(picture, 0), picture);
}

TEST(Shadow, it_fades_as_the_gaussian_of_half_its_radius_on_both_sides) {
    for (const qreal scale : {1.0, 2.0}) {
        const QImage image = lineWithShadow(Color(0, 0, 1), Color(1, 0, 0, 0.5), scale);
        for (int y = 0; y < image.height(); ++y) {
            const double distance = std::abs((y + 0.5) / scale - 50.5);
            if (distance > 2.5) {
                const int expected = qRound(255 * 0.5 * shareOfBand(distance));
                EXPECT_NEAR(qAlpha(image.pixel(image.width() / 2, y)), expected, 2)
                    << distance << " at scale " << scale;
            }
        }
    }
}

TEST(Shadow, it_stands_where_its_offset_moves_it) {
    QImage image = transparent(100);
    QtGraphicsContext context(canvasOf(image), image.rect(), 1);
    Path path;
    path.move({-50, 30.5});
    path.addLine({150, 30.5});
    context.strokeWithShadow(path, Color::blue, {.lineWidth = 3}, {Color::red, 4, {0, 40}});
    EXPECT_EQ(qAlpha(image.pixel(50, 35)), 0);
    EXPECT_NEAR(qAlpha(image.pixel(50, 70)), 255 * shareOfBand(0), 2);
}

TEST(Shadow, it_lies_below_the_stroke) {
    const QImage image = lineWithShadow(Color(0, 0, 1), Color(1, 0, 0, 0.5));
    EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::blue));
    const QColor glow = image.pixelColor(50, 53);
    EXPECT_EQ(glow.blue(), 0);
    EXPECT_GT(glow.red(), 250);
}

TEST(Shadow, the_opacity_of_the_stroke_is_not_that_of_its_shadow) {
    const QImage opaque = lineWithShadow(Color(0, 0, 1), Color(1, 0, 0, 0.5));
    const QImage faint = lineWithShadow(Color(0, 0, 1, 0.1), Color(1, 0, 0, 0.5));
    EXPECT_EQ(faint.pixel(50, 54), opaque.pixel(50, 54));
    EXPECT_LT(qAlpha(faint.pixel(50, 50)), 150);
}

TEST(Shadow, a_figure_of_no_size_has_none_to_speak_of) {
    QImage image = transparent(40);
    QtGraphicsContext context(canvasOf(image), image.rect(), 1);
    Path path;
    path.addEllipse({20, 20, 0, 0});
    context.strokeWithShadow(path, Color::red, {.lineWidth = 3}, {Color::red, 4, {}});
    EXPECT_EQ(qAlpha(image.pixel(20, 10)), 0);
}

} // namespace quillon::test
