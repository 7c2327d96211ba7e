#include "desktop/qt/toolbar/SwatchButton.h"

#include "desktop/qt/QtConversions.h"
#include "desktop/qt/toolbar/Panel.h"
#include "desktop/qt/toolbar/Ring.h"
#include "desktop/qt/widgets/FocusRing.h"
#include "desktop/qt/widgets/PaintSwatch.h"

#include <QPainter>

namespace quillon::desktop {

SwatchButton::SwatchButton(const ColorSwatchView& face, QWidget& parent)
    : QAbstractButton(&parent)
    , m_face(face) {
    setFixedSize(sizeHint());
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(QString::fromStdString(colorHex(face.color)));
    setCheckable(face.isSelected);
    setChecked(face.isSelected);
}

QSize SwatchButton::sizeHint() const {
    const int side = qRound(m_face.ringDiameter() + ColorSwatchView::ringLineWidth) +
                     2 * shadowReach(ColorSwatchView::ringShadow);
    return {side, side};
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
    if (underMouse() || FocusRing::isShown(*this)) {
        FocusRing::stroke(painter, circle(center, m_face.ringDiameter()), palette());
    }
}

} // namespace quillon::desktop
