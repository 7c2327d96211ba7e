#include "desktop/qt/settings/TabButtonWidget.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/QtConversions.h"
#include "desktop/qt/SymbolPicture.h"
#include "desktop/qt/TextStyles.h"
#include "desktop/qt/widgets/FocusRing.h"

#include <QFontMetrics>
#include <QPainter>

namespace quillon::desktop {

namespace {

/// A glyph is a little larger than the font of its size.
constexpr int kSymbolSize = 20;
constexpr qreal kFocusRadius = 6;
constexpr qreal kTextMargin = 5;

QFont textFont() {
    return systemFont(TabButton::textFontSize);
}

} // namespace

TabButtonWidget::TabButtonWidget(const TabButton& button, QWidget* parent)
    : QAbstractButton(parent)
    , m_symbol(button.symbol)
    , m_label(QString::fromStdString(button.label)) {
    setCheckable(true);
    setAutoExclusive(true);
    setChecked(button.isSelected);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(m_label);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize TabButtonWidget::sizeHint() const {
    const int text = QFontMetrics(textFont()).height();
    return {80, qRound(2 * TabButton::verticalPadding + kSymbolSize + TabButton::spacing) + text};
}

void TabButtonWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = toQColor(
        isChecked() ? SystemColor::controlAccentColor : SystemColor::labelColor, palette());
    if (isChecked()) {
        const double opacity = TabButton::selectedGroundOpacity;
        painter.fillRect(rect(),
                         toQColor(SystemColor::controlAccentColor.opacity(opacity), palette()));
    }
    const int top = qRound(TabButton::verticalPadding);
    painter.drawImage((width() - kSymbolSize) / 2, top,
                      symbolPicture(m_symbol, kSymbolSize, devicePixelRatioF(), ink));
    painter.setFont(textStyle::fitting(textFont(), m_label, width() - 2 * kTextMargin));
    painter.setPen(ink);
    const int textTop = top + kSymbolSize + qRound(TabButton::spacing);
    painter.drawText(QRect(0, textTop, width(), height() - textTop),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine, m_label);
    if (FocusRing::isShown(*this)) {
        FocusRing::paintInside(painter, rect(), kFocusRadius, palette());
    }
}

} // namespace quillon::desktop
