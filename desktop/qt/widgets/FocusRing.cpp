#include "desktop/qt/widgets/FocusRing.h"

#include "desktop/qt/Appearance.h"

#include <QPen>

namespace quillon::desktop {

namespace {

/// From the edge of a shape to the middle of the ring.
constexpr qreal kDistance = 1.5;

void strokeBeside(QPainter& painter, const QRectF& shape, qreal radius, qreal outward,
                  const QPalette& palette) {
    QPainterPath figure;
    figure.addRoundedRect(shape.adjusted(-outward, -outward, outward, outward), radius + outward,
                          radius + outward);
    FocusRing::stroke(painter, figure, palette);
}

} // namespace

bool FocusRing::isShown(const QWidget& control) {
    return control.hasFocus() && control.window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

void FocusRing::paint(QPainter& painter, const QRectF& shape, qreal radius,
                      const QPalette& palette) {
    strokeBeside(painter, shape, radius, kDistance, palette);
}

void FocusRing::paintInside(QPainter& painter, const QRectF& shape, qreal radius,
                            const QPalette& palette) {
    strokeBeside(painter, shape, radius, -kDistance, palette);
}

void FocusRing::stroke(QPainter& painter, const QPainterPath& figure, const QPalette& palette) {
    painter.strokePath(figure, QPen(toQColor(SystemColor::controlAccentColor, palette), lineWidth));
}

} // namespace quillon::desktop
