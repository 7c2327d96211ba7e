#include "desktop/qt/settings/Look.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/QtConversions.h"

#include <QFontDatabase>

namespace quillon::desktop::look {

namespace {

constexpr int kBodySize = 13;
constexpr int kSubheadlineSize = 12;
constexpr int kTitleSize = 22;

QColor withAlpha(QColor color, float alpha) {
    color.setAlphaF(alpha);
    return color;
}

QFont weighted(QFont font, QFont::Weight weight) {
    font.setWeight(weight);
    return font;
}

} // namespace

QColor page(const QPalette& palette) {
    return blended(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.02F);
}

QColor group(const QPalette& palette) {
    return blended(palette.color(QPalette::Window), Qt::white, isDark(palette) ? 0.06F : 0.75F);
}

QColor hairline(const QPalette& palette) {
    return withAlpha(palette.color(QPalette::WindowText), 0.1F);
}

QColor outline(const QPalette& palette) {
    return withAlpha(palette.color(QPalette::WindowText), 0.28F);
}

QColor track(const QPalette& palette) {
    return withAlpha(palette.color(QPalette::WindowText), 0.18F);
}

QFont body() {
    return systemFont(kBodySize);
}

QFont caption() {
    return systemFont(captionSize);
}

QFont monospacedCaption() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(captionSize);
    return font;
}

QFont roundedBoldCaption() {
    return weighted(caption(), QFont::Bold);
}

QFont subheadline() {
    return systemFont(kSubheadlineSize);
}

QFont headline() {
    return weighted(body(), QFont::DemiBold);
}

QFont title() {
    return weighted(systemFont(kTitleSize), QFont::Bold);
}

} // namespace quillon::desktop::look
