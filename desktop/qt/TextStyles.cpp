#include "desktop/qt/TextStyles.h"

#include "desktop/qt/QtConversions.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QtMath>

namespace quillon::desktop::textStyle {

namespace {

constexpr qreal kBodySize = 13;
constexpr qreal kSubheadlineSize = 12;
constexpr qreal kTitleSize = 22;
/// In percent of a font's own width.
constexpr int kNarrowest = 75;

QFont weighted(QFont font, QFont::Weight weight) {
    font.setWeight(weight);
    return font;
}

} // namespace

QFont body() {
    return systemFont(kBodySize);
}

QFont caption() {
    return systemFont(captionSize);
}

QFont monospacedCaption() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(qRound(captionSize));
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

QFont fitting(QFont font, const QString& text, qreal room) {
    const qreal width = QFontMetricsF(font).horizontalAdvance(text);
    if (width > room) {
        font.setStretch(qMax(qFloor(100 * room / width), kNarrowest));
    }
    return font;
}

} // namespace quillon::desktop::textStyle
