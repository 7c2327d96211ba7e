#include "desktop/qt/widgets/Divider.h"

#include "desktop/qt/Appearance.h"

#include <QPainter>
#include <QTransform>
#include <QtMath>

namespace quillon::desktop {

Divider* Divider::across() {
    auto* divider = new Divider;
    divider->setFixedHeight(1);
    return divider;
}

Divider* Divider::upright(qreal height) {
    auto* divider = new Divider;
    divider->setFixedSize(1, qRound(height));
    return divider;
}

void Divider::paint(QPainter& painter, const QRectF& area, const QPalette& palette) {
    const QTransform toPixels = painter.deviceTransform();
    QRectF line = toPixels.mapRect(area);
    const int thickness = qMax(1, qFloor(painter.device()->devicePixelRatio()));
    line.moveTopLeft(line.topLeft().toPoint());
    if (area.width() > area.height()) {
        line.setHeight(thickness);
    } else {
        line.setWidth(thickness);
    }
    painter.fillRect(toPixels.inverted().mapRect(line), separator(palette));
}

void Divider::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paint(painter, rect(), palette());
}

} // namespace quillon::desktop
