#include "desktop/qt/QtImages.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

namespace quillon::test {

using namespace desktop;

namespace {

QImage draw(const char* symbol, SymbolTint tint, int side) {
    const Image image{Image::Kind::symbol, symbol, {}, {}};
    return QtImages::icon(image, tint).pixmap(QSize(side, side), 1.0).toImage();
}

/// The contrast of two luminances as the WCAG 2 counts it, from 1 to 21.
double contrast(double a, double b) {
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

double luminance(QRgb color) {
    const auto linear = [](int component) { return std::pow(component / 255.0, 2.2); };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) +
           0.0722 * linear(qBlue(color));
}

double bestContrastOn(QColor panel, const char* symbol) {
    QImage shown(22, 22, QImage::Format_RGB32);
    shown.fill(panel);
    QPainter(&shown).drawImage(0, 0, draw(symbol, SymbolTint::panel, 22));
    double best = 1;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            best = std::max(best, contrast(luminance(shown.pixel(x, y)), luminance(panel.rgb())));
        }
    }
    return best;
}

} // namespace

TEST(QtImages, every_symbol_that_the_system_names_is_there) {
    const QtImages images;
    for (const char* name :
         {"pencil.and.outline", "pencil.and.outline.fill", "pencil.tip", "highlighter", "eraser",
          "textformat", "rectangle", "circle", "line.diagonal", "arrow.up.right"}) {
        const auto symbol = images.symbol(name, "what it means");
        ASSERT_TRUE(symbol) << name;
        EXPECT_EQ(symbol->name, name);
        EXPECT_EQ(symbol->kind, Image::Kind::symbol);
        EXPECT_EQ(symbol->accessibilityDescription, "what it means");
        EXPECT_FALSE(QtImages::icon(*symbol, SymbolTint::foreground).isNull()) << name;
    }
}

TEST(QtImages, a_symbol_that_was_never_drawn_is_absent) {
    EXPECT_FALSE(QtImages().symbol("no.such.symbol", ""));
}

TEST(QtImages, an_asset_without_a_file_is_absent) {
    EXPECT_FALSE(QtImages().named("NoSuchAsset"));
}

TEST(QtImages, a_symbol_is_no_asset) {
    EXPECT_FALSE(QtImages().named("circle"));
}

TEST(QtImages, a_symbol_takes_the_colour_of_the_text_around_it) {
    QPalette palette;
    palette.setColor(QPalette::WindowText, QColor(200, 10, 30));
    const QPalette present = QGuiApplication::palette();
    QGuiApplication::setPalette(palette);
    const QImage line = draw("line.diagonal", SymbolTint::foreground, 48);
    QGuiApplication::setPalette(present);
    EXPECT_EQ(line.pixelColor(24, 24), QColor(200, 10, 30));
    EXPECT_EQ(line.pixelColor(2, 2).alpha(), 0);
}

TEST(QtImages, a_picture_has_the_pixels_that_its_place_has) {
    const Image image{Image::Kind::symbol, "circle", {}, {}};
    const QPixmap sharp = QtImages::icon(image, SymbolTint::foreground).pixmap(QSize(22, 22), 2.0);
    EXPECT_EQ(sharp.size(), QSize(44, 44));
    EXPECT_EQ(sharp.devicePixelRatio(), 2.0);
}

TEST(QtImages, a_panel_symbol_reads_on_dark_light_and_grey) {
    for (const QColor panel : {QColor(20, 20, 20), QColor(240, 240, 240), QColor(128, 128, 128)}) {
        EXPECT_GE(bestContrastOn(panel, "pencil.and.outline"), 3.0) << panel.lightness();
        EXPECT_GE(bestContrastOn(panel, "pencil.and.outline.fill"), 3.0) << panel.lightness();
    }
}

TEST(QtImages, the_filled_pencil_is_told_from_the_outlined_one_at_panel_size) {
    const QImage off = draw("pencil.and.outline", SymbolTint::panel, 22);
    const QImage on = draw("pencil.and.outline.fill", SymbolTint::panel, 22);
    const auto light = [](const QImage& image) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                count += image.pixelColor(x, y).alpha() > 200 && image.pixelColor(x, y).red() > 200;
            }
        }
        return count;
    };
    EXPECT_GT(light(on), 2 * light(off));
}

} // namespace quillon::test
