#pragma once

#include <QColor>
#include <QPainter>
#include <QPalette>
#include <QRectF>

namespace quillon::desktop {

/// A colour in a shape with rounded corners, on a chequered ground where it is translucent. A fine
/// edge keeps a colour in sight that is the one of the ground around it.
void paintSwatch(QPainter& painter, const QRectF& shape, qreal radius, const QColor& color,
                 const QPalette& palette);

} // namespace quillon::desktop
