#pragma once

#include "foundation/Color.h"
#include "foundation/Geometry.h"
#include "platform/GraphicsContext.h"

#include <QColor>
#include <QFont>
#include <QPainterPath>
#include <QPen>
#include <QRect>
#include <QRectF>

#include <xcb/xcb.h>

/// The system's plain values in the toolkit's terms.
namespace quillon::desktop {

/// Components outside of 0 to 1 are clamped, since nothing brighter can be painted.
QColor toQColor(const Color& color);
QPainterPath toQPainterPath(const Path& path);
/// For a painter with so many device pixels to a point. No line is thinner than a pixel.
QPen toQPen(const Color& color, const StrokeStyle& style, CGFloat scale);

inline QPointF toQPointF(CGPoint point) {
    return {point.x, point.y};
}
inline QRectF toQRectF(const CGRect& rect) {
    return {rect.x, rect.y, rect.width, rect.height};
}
inline CGPoint fromQPointF(QPointF point) {
    return {point.x(), point.y()};
}
inline CGRect fromQRectF(const QRectF& rect) {
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

/// The device pixels that a rectangle in points touches.
QRect devicePixels(const CGRect& rect, CGFloat scale);

/// Device pixels as the server takes them.
xcb_rectangle_t toXRectangle(const QRect& pixels);

/// The application's font, default weight, at a size in points of the system: logical pixels.
QFont systemFont(CGFloat size);

} // namespace quillon::desktop
