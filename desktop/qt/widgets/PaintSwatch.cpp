#include "desktop/qt/widgets/PaintSwatch.h"

#include "desktop/qt/Appearance.h"

#include <QPainterPath>
#include <QPixmap>

namespace quillon::desktop {

namespace {

QBrush chequers() {
    constexpr int side = 4;
    QPixmap pattern(2 * side, 2 * side);
    pattern.fill(Qt::white);
    QPainter painter(&pattern);
    painter.fillRect(side, 0, side, side, Qt::lightGray);
    painter.fillRect(0, side, side, side, Qt::lightGray);
    return pattern;
}

QPainterPath rounded(const QRectF& shape, qreal radius) {
    QPainterPath figure;
    figure.addRoundedRect(shape, radius, radius);
    return figure;
}

} // namespace

void paintSwatch(QPainter& painter, const QRectF& shape, qreal radius, const QColor& color,
                 const QPalette& palette) {
    const QPainterPath figure = rounded(shape, radius);
    if (color.alpha() < 255) {
        painter.setBrushOrigin(shape.topLeft());
        painter.fillPath(figure, chequers());
    }
    painter.fillPath(figure, color);
    painter.strokePath(rounded(shape.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5),
                       QPen(outline(palette), 1));
}

} // namespace quillon::desktop
