#include "desktop/qt/settings/ColorCircle.h"

#include "desktop/qt/QtConversions.h"

#include <QPainter>

#include <utility>

namespace quillon::desktop {

ColorCircle::ColorCircle(ColorPickerRow row, QWidget* parent)
    : QWidget(parent)
    , m_row(std::move(row))
    , m_shown(m_row.color.get()) {
    setFixedSize(qRound(ColorPickerRow::circleSize.width),
                 qRound(ColorPickerRow::circleSize.height));
}

void ColorCircle::refresh() {
    if (!(m_row.color.get() == m_shown)) {
        m_shown = m_row.color.get();
        update();
    }
}

void ColorCircle::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(toQColor(m_shown));
    painter.drawEllipse(rect());
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(toQColor(Color::white.opacity(ColorPickerRow::ringOpacity)),
                        ColorPickerRow::ringWidth));
    // The ring's stroke stays within the circle's frame, where it would be cut off otherwise.
    const qreal half = ColorPickerRow::ringWidth / 2;
    painter.drawEllipse(QRectF(rect()).adjusted(half, half, -half, -half));
}

} // namespace quillon::desktop
