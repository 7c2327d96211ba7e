#include "desktop/qt/toolbar/SwatchButton.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/QtConversions.h"
#include "desktop/qt/toolbar/Panel.h"
#include "desktop/qt/toolbar/Ring.h"
#include "desktop/qt/widgets/FocusRing.h"

#include <QPainter>
#include <QPainterPath>

namespace quillon::desktop {

namespace {

QBrush chequers() {
    constexpr int side = 4;
    QPixmap pattern(2 * side, 2 * side);
    pattern.fill(Qt::white);
    QPainter painter(&pattern);
    painter.fillRect(0, 0, side, side, Qt::lightGray);
    painter.fillRect(side, side, side, side, Qt::lightGray);
    return pattern;
}

} // namespace

void fillWithColor(QPainter& painter, const QPainterPath& figure, const QColor& color) {
    if (color.alpha() < 255) {
        painter.fillPath(figure, chequers());
    }
    painter.fillPath(figure, color);
}

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
    const QPainterPath disc = circle(center, m_face.size);
    fillWithColor(painter, disc, toQColor(m_face.color));
    // The colour of the panel itself would be lost on it.
    painter.strokePath(circle(center, m_face.size - 1), QPen(hairline(palette()), 1));
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
