#include "desktop/qt/toolbar/PresetButton.h"

#include "desktop/qt/Appearance.h"

#include <QPainter>

namespace quillon::desktop {

namespace {

/// A thin bar can be met as easily as a thick one.
constexpr int kHeight = 28;

} // namespace

PresetButton::PresetButton(const LineWidthPreset& preset, QWidget& parent)
    : PaintedButton({qRound(LineWidthPreset::width), kHeight}, tr("%1 points").arg(preset.height),
                    parent)
    , m_thickness(preset.height) {}

void PresetButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(toQColor(
        isPointedAt() ? SystemColor::controlAccentColor : SystemColor::labelColor, palette()));
    const QRectF bar(0, (height() - m_thickness) / 2, width(), m_thickness);
    const qreal radius = qMin(LineWidthPreset::cornerRadius, m_thickness / 2);
    painter.drawRoundedRect(bar, radius, radius);
}

} // namespace quillon::desktop
