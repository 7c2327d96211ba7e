#include "desktop/qt/QtConversions.h"
#include "desktop/qt/QtGraphics.h"
#include "desktop/qt/QtGraphicsContext.h"
#include "spotlight/CircleDamage.h"
#include "spotlight/DimmedPicture.h"

#include <QPainter>
#include <gtest/gtest.h>

#include <random>

namespace quillon::desktop {
namespace {

constexpr CGSize kSize{400, 300};
const Color kDark = Color::black.opacity(0.7);

CGRect wholeView() {
    return {0, 0, kSize.width, kSize.height};
}

QImage blank(CGFloat scale) {
    QImage picture(devicePixels(wholeView(), scale).size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    return picture;
}

/// Paints `rect`, widened to device pixels, anew from nothing.
template <typename Body>
void paint(QImage& picture, const CGRect& rect, CGFloat scale, Body&& body) {
    const QRect pixels = devicePixels(rect, scale) & picture.rect();
    if (pixels.isEmpty()) {
        return;
    }
    QPainter painter(&picture);
    painter.setClipRect(pixels);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(pixels, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.scale(scale, scale);
    const CGRect part{pixels.x() / scale, pixels.y() / scale, pixels.width() / scale,
                      pixels.height() / scale};
    QtGraphicsContext context(painter, part, scale);
    body(context, part);
}

/// The whole as one even-odd fill, by the painter alone.
QImage reference(const Circle& circle, CGFloat scale) {
    QImage picture = blank(scale);
    paint(picture, wholeView(), scale, [&](GraphicsContext& context, const CGRect&) {
        Path mask;
        mask.addRect(wholeView());
        mask.addEllipse(circle.bounds());
        context.fillEvenOdd(mask, kDark);
    });
    return picture;
}

/// How far the two are apart where they differ most.
int largestDifference(const QImage& a, const QImage& b) {
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            largest = std::max(largest, std::abs(qAlpha(a.pixel(x, y)) - qAlpha(b.pixel(x, y))));
        }
    }
    return largest;
}

class SpotlightPicture : public testing::TestWithParam<CGFloat> {};

TEST_P(SpotlightPicture, after_any_moves_it_is_the_even_odd_fill_of_the_whole) {
    const CGFloat scale = GetParam();
    std::mt19937 random(7);
    // The pointer stands on whole device pixels.
    std::uniform_int_distribution<int> anyX(-20, static_cast<int>(kSize.width * scale) + 20);
    std::uniform_int_distribution<int> anyY(-20, static_cast<int>(kSize.height * scale) + 20);
    std::uniform_int_distribution<int> step(-9, 9);
    std::uniform_int_distribution<int> kind(0, 9);

    QtGraphics graphics;
    DimmedPicture dimmed(graphics);
    QImage screen = blank(scale);
    const auto paintOnScreen = [&](const CGRect& rect, const Circle& circle) {
        paint(screen, rect, scale, [&](GraphicsContext& context, const CGRect& part) {
            dimmed.paint(context, part, circle, kDark, scale);
        });
    };
    QPoint pixel(200, 150);
    Circle circle{{pixel.x() / scale, pixel.y() / scale}, 60};
    paintOnScreen(wholeView(), circle);
    for (int move = 0; move < 60; ++move) {
        const int chosen = kind(random);
        pixel = chosen == 0 ? QPoint(anyX(random), anyY(random))
                            : pixel + QPoint(step(random), step(random));
        const Circle next{{pixel.x() / scale, pixel.y() / scale},
                          chosen == 1 ? 40.0 + step(random) : circle.radius};
        const Damage damage = differenceOfCircles(circle, next);
        for (const CGRect& rect : damage.rects()) {
            paintOnScreen(rect, next);
        }
        circle = next;
        ASSERT_EQ(largestDifference(screen, reference(circle, scale)), 0) << "after move " << move;
    }
}

INSTANTIATE_TEST_SUITE_P(AtEachScale, SpotlightPicture, testing::Values(1.0, 1.25, 1.5, 2.0));

} // namespace
} // namespace quillon::desktop
