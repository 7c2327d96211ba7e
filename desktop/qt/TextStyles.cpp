#include "desktop/qt/TextStyles.h"

#include "desktop/qt/QtConversions.h"

#include <QFontDatabase>

namespace quillon::desktop::textStyle {

namespace {

constexpr qreal kBodySize = 13;
constexpr qreal kSubheadlineSize = 12;
constexpr qreal kTitleSize = 22;

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

} // namespace quillon::desktop::textStyle
