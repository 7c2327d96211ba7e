#include "desktop/qt/toolbar/SwatchButton.h"

#include "desktop/qt/QtConversions.h"
#include "desktop/qt/toolbar/Panel.h"
#include "desktop/qt/toolbar/Ring.h"
#include "desktop/qt/widgets/FocusRing.h"
#include "desktop/qt/widgets/PaintSwatch.h"

#include <QPainter>

namespace quillon::desktop {

namespace {

QSize sizeOf(const ColorSwatchView& face) {
    const int side = qRound(face.ringDiameter() + ColorSwatchView::ringLineWidth) +
                     2 * shadowReach(ColorSwatchView::ringShadow);
    return {side, side};
}

} // namespace

SwatchButton::SwatchButton(const ColorSwatchView& face, QWidget& parent)
    : PaintedButton(sizeOf(face), QString::fromStdString(colorHex(face.color)), parent)
    , m_face(face) {
    setCheckable(face.isSelected);
    setChecked(face.isSelected);
}

void SwatchButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF center = QRectF(rect()).center();
    QRectF disc(0, 0, m_face.size, m_face.size);
    disc.moveCenter(center);
    paintSwatch(painter, disc, m_face.size / 2, toQColor(m_face.color), palette());
    if (m_face.isSelected) {
        paintRing(painter, circle(center, m_face.ringDiameter()),
                  QPen(toQColor(ColorSwatchView::ringColor), ColorSwatchView::ringLineWidth),
                  ColorSwatchView::ringShadow);
    }
    if (isPointedAt()) {
        FocusRing::stroke(painter, circle(center, m_face.ringDiameter()), palette());
    }
}

} // namespace quillon::desktop
