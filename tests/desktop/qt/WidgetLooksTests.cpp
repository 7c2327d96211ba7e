#include "desktop/qt/Appearance.h"
#include "desktop/qt/ColorScheme.h"
#include "desktop/qt/TextStyles.h"
#include "desktop/qt/widgets/Divider.h"
#include "desktop/qt/widgets/PaintSwatch.h"
#include "desktop/qt/widgets/Slider.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTest>

#include <cmath>

namespace quillon::test {

using namespace desktop;

namespace {

QPalette lightPalette() {
    return QGuiApplication::palette();
}

} // namespace

TEST(WidgetLooks, a_divider_is_sharp_wherever_a_broken_scale_puts_it) {
    for (const qreal scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        for (int y = 0; y < 8; ++y) {
            QImage picture(40, 40, QImage::Format_RGB32);
            picture.setDevicePixelRatio(scale);
            picture.fill(Qt::white);
            QPainter painter(&picture);
            painter.setRenderHint(QPainter::Antialiasing);
            Divider::paint(painter, QRectF(0, y, 20, 1), lightPalette());
            painter.end();
            picture.setDevicePixelRatio(1);
            int lines = 0;
            for (int row = 0; row < picture.height(); ++row) {
                const QColor seen = picture.pixelColor(10, row);
                EXPECT_TRUE(seen == Qt::white || seen.lightness() < 235) << seen.lightness();
                lines += seen == Qt::white ? 0 : 1;
            }
            EXPECT_EQ(lines, static_cast<int>(scale)) << scale << " at " << y;
        }
    }
}

TEST(WidgetLooks, a_text_too_wide_for_its_room_is_drawn_narrower_within_reason) {
    const QFont font = textStyle::body();
    const QString text = "Spotlight & Zoom";
    const qreal natural = QFontMetricsF(font).horizontalAdvance(text);
    const auto widthIn = [&](qreal room) {
        return QFontMetricsF(textStyle::fitting(font, text, room)).horizontalAdvance(text);
    };
    EXPECT_EQ(widthIn(natural + 1), natural);
    EXPECT_LE(widthIn(0.85 * natural), 0.9 * natural);
    EXPECT_GT(widthIn(0.1 * natural), 0.6 * natural);
}

TEST(WidgetLooks, a_swatch_of_the_colour_around_it_keeps_an_edge) {
    for (const QPalette& palette : {lightPalette(), ColorScheme::darkPalette(lightPalette())}) {
        const QColor around = popupMaterial(palette).rgb();
        QImage picture(20, 20, QImage::Format_RGB32);
        picture.fill(around);
        QPainter painter(&picture);
        paintSwatch(painter, QRectF(0, 0, 20, 20), 0, around, palette);
        painter.end();
        EXPECT_EQ(picture.pixelColor(10, 10), around);
        EXPECT_GT(std::abs(picture.pixelColor(0, 10).lightness() - around.lightness()), 20);
    }
}

TEST(WidgetLooks, a_press_beyond_either_end_of_a_slider_goes_to_its_first_and_its_last_stop) {
    Slider slider(7);
    slider.resize(150, slider.sizeHint().height());
    slider.setValue(3);
    const int middle = slider.height() / 2;
    QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, {1, middle});
    EXPECT_EQ(slider.value(), 0);
    QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, {148, middle});
    EXPECT_EQ(slider.value(), 7);
    QTest::mouseClick(&slider, Qt::RightButton, Qt::NoModifier, {1, middle});
    EXPECT_EQ(slider.value(), 7);
}

TEST(WidgetLooks, a_slider_rings_its_knob_once_the_window_is_worked_by_keys) {
    Slider slider(7);
    slider.resize(150, slider.sizeHint().height());
    slider.show();
    QCoreApplication::processEvents();
    slider.setFocus(Qt::MouseFocusReason);
    ASSERT_TRUE(slider.hasFocus());
    const QImage clicked = slider.grab().toImage();
    slider.setAttribute(Qt::WA_KeyboardFocusChange);
    EXPECT_NE(slider.grab().toImage(), clicked);
}

} // namespace quillon::test
