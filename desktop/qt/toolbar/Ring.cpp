#include "desktop/qt/toolbar/Ring.h"

#include "desktop/qt/Blur.h"
#include "desktop/qt/QtConversions.h"
#include "desktop/qt/toolbar/Panel.h"

#include <QtMath>

namespace quillon::desktop {

QPainterPath circle(QPointF center, qreal diameter) {
    QPainterPath path;
    path.addEllipse(center, diameter / 2, diameter / 2);
    return path;
}

void paintRing(QPainter& painter, const QPainterPath& figure, const QPen& pen,
               const Shadow& shadow) {
    const qreal scale = painter.device()->devicePixelRatio();
    const int reach = shadowReach(shadow) + qCeil(pen.widthF());
    const QRect area = figure.boundingRect().adjusted(-reach, -reach, reach, reach).toAlignedRect();
    QImage picture(area.size() * scale, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter into(&picture);
    into.setRenderHint(QPainter::Antialiasing);
    into.translate(-area.topLeft());
    into.strokePath(figure, QPen(Qt::black, pen.widthF()));
    into.end();
    picture = tinted(blurred(picture, shadow.radius / 2 * scale), toQColor(shadow.color));
    picture.setDevicePixelRatio(scale);
    painter.drawImage(area.topLeft(), picture);
    painter.strokePath(figure, pen);
}

} // namespace quillon::desktop
