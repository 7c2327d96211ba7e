#include "desktop/qt/widgets/Swatch.h"

#include "desktop/qt/widgets/PaintSwatch.h"

#include <QPainter>

namespace quillon::desktop {

Swatch::Swatch(const Face& face, QWidget* parent)
    : QWidget(parent)
    , m_face(face) {
    setFixedSize(face.size.toSize());
}

void Swatch::setColor(const QColor& color) {
    if (color != m_color) {
        m_color = color;
        update();
    }
}

void Swatch::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintSwatch(painter, rect(), m_face.cornerRadius, m_color, palette());

    const qreal half = m_face.borderWidth / 2;
    painter.setPen(QPen(m_face.border, m_face.borderWidth));
    painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half),
                            m_face.cornerRadius - half, m_face.cornerRadius - half);
}

} // namespace quillon::desktop
