#pragma once

#include "toolbar/FloatingToolbarView.h"

#include <QPainter>
#include <QPainterPath>

namespace quillon::desktop {

QPainterPath circle(QPointF center, qreal diameter);

/// Strokes a figure over its own soft shadow.
void paintRing(QPainter& painter, const QPainterPath& figure, const QPen& pen,
               const Shadow& shadow);

} // namespace quillon::desktop
