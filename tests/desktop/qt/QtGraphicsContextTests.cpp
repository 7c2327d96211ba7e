#include "desktop/qt/QtConversions.h"
#include "desktop/qt/QtGraphicsContext.h"
#include "raster/Blending.h"

#include <gtest/gtest.h>

#include <QImage>

#include <functional>

namespace quillon::desktop {
namespace {

constexpr QRect kView{0, 0, 120, 90};

QImage blank(QSize size) {
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    return picture;
}

using Draw = std::function<void(GraphicsContext&)>;

/// The part of a view that lies in `place`, drawn on a canvas of that size with a clip of its own.
QImage drawn(const QRect& place, const QRegion& clip, CGFloat scale, const Draw& draw) {
    QImage picture = blank(place.size());
    QtGraphicsContext context(canvasOf(picture, place.topLeft()), clip, scale);
    draw(context);
    return picture;
}

QImage drawn(const Draw& draw) {
    return drawn(kView, kView, 1, draw);
}

Path line(CGPoint start, CGPoint end) {
    Path path;
    path.move(start);
    path.addLine(end);
    return path;
}

/// One of everything, by the toolkit and past it.
void drawMixed(GraphicsContext& context) {
    constexpr StrokeStyle round{6, LineCap::round, LineJoin::round};
    context.stroke(line({10, 20}, {90, 70}), Color::red.opacity(0.6), round);
    context.drawText({"Quill", 30, Color::blue.opacity(0.7)}, {15, 20}, Anchor::topLeading);
    context.stroke(line({10, 70}, {90, 20}), Color::green.opacity(0.6), round);
    context.setBlendMode(BlendMode::plusLighter);
    context.setOpacity(0.5);
    Path circle;
    circle.addEllipse({30, 20, 40, 40});
    context.fill(circle, Color::yellow.opacity(0.8));
    context.stroke(line({20, 45}, {80, 45}), Color::white.opacity(0.3), round);
    context.setBlendMode(BlendMode::normal);
    context.clear({48, 40, 4, 10});
    context.drawLayer([&](GraphicsContext& layer) {
        layer.stroke(line({5, 5}, {70, 60}), Color::black, round);
        layer.drawText({"ink", 20, Color::cyan}, {30, 30}, Anchor::topLeading);
    });
    context.fillRect({60, 50, 10, 10}, Color::purple);
}

TEST(QtGraphicsContext, on_a_canvas_that_begins_elsewhere_everything_has_the_pixels_of_the_whole) {
    const QImage whole = drawn(drawMixed);
    for (const QRect& place :
         {QRect(13, 7, 50, 40), QRect(40, 30, 80, 60), QRect(-9, -5, 60, 50)}) {
        const QImage part = drawn(place, place, 1, drawMixed);
        const QRect common = place & kView;
        EXPECT_EQ(part.copy(common.translated(-place.topLeft())), whole.copy(common));
    }
}

TEST(QtGraphicsContext,
     nothing_is_drawn_outside_of_a_clip_of_several_parts_and_each_has_the_pixels_of_the_whole) {
    const QImage whole = drawn(drawMixed);
    const QRegion clip = QRegion(10, 10, 30, 40) + QRect(35, 30, 50, 20) + QRect(70, 60, 20, 20);
    const QImage clipped = drawn(kView, clip, 1, drawMixed);
    for (int y = 0; y < kView.height(); ++y) {
        for (int x = 0; x < kView.width(); ++x) {
            const QRgb expected = clip.contains(QPoint(x, y)) ? whole.pixel(x, y) : 0;
            ASSERT_EQ(clipped.pixel(x, y), expected) << x << ", " << y;
        }
    }
}

TEST(QtGraphicsContext, what_is_drawn_later_lies_above_whichever_way_it_goes) {
    const Path dot = line({50, 45}, {50, 45});
    const StrokeStyle broad{40, LineCap::round, LineJoin::round};
    Path square;
    square.addRect({30, 25, 40, 40});
    const QImage inkAbove = drawn([&](GraphicsContext& context) {
        context.fill(square, Color::blue);
        context.stroke(dot, Color::red, broad);
    });
    EXPECT_EQ(inkAbove.pixel(50, 45), premultipliedPixel(Color::red, 1));
    const QImage fillAbove = drawn([&](GraphicsContext& context) {
        context.fill(square, Color::green);
        context.stroke(dot, Color::red, broad);
        context.fill(square, Color::blue);
    });
    EXPECT_EQ(fillAbove.pixel(50, 45), premultipliedPixel(Color::blue, 1));
}

TEST(QtGraphicsContext, an_opacity_set_between_two_draws_holds_for_the_second_alone) {
    Path square;
    square.addRect({10, 10, 20, 20});
    const QImage picture = drawn([&](GraphicsContext& context) {
        context.fill(square, Color::red);
        context.setOpacity(0.5);
        context.fillRect({50, 10, 20, 20}, Color::red);
        square.clear();
        square.addRect({80, 10, 20, 20});
        context.fill(square, Color::red);
    });
    EXPECT_EQ(qAlpha(picture.pixel(20, 20)), 255);
    EXPECT_EQ(qAlpha(picture.pixel(60, 20)), 128);
    EXPECT_NEAR(qAlpha(picture.pixel(90, 20)), 128, 1);
}

} // namespace
} // namespace quillon::desktop
