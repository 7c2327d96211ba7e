#pragma once

#include "foundation/Color.h"
#include "foundation/Geometry.h"
#include "platform/GraphicsContext.h"
#include "raster/PixelCanvas.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainterPath>
#include <QPen>
#include <QRect>
#include <QRectF>

#include <xcb/xcb.h>

#include <optional>

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

inline PixelRect toPixelRect(const QRect& pixels) {
    return {pixels.left(), pixels.top(), pixels.right() + 1, pixels.bottom() + 1};
}

/// The pixels of an image of premultiplied ones whose corner lies at `corner` in a view. They live
/// as long as the image.
PixelCanvas canvasOf(QImage& image, QPoint corner = {});
PixelPicture pictureOf(const QImage& image, QPoint corner = {});
/// The same the other way: an image that has no pixels of its own.
QImage imageOf(const PixelCanvas& canvas);
/// What a device for painting has of pixels; nothing unless they are premultiplied.
std::optional<PixelCanvas> canvasOf(QPaintDevice& device);

/// Device pixels as the server takes them.
xcb_rectangle_t toXRectangle(const QRect& pixels);

/// The application's font, default weight, at a size in points of the system: logical pixels.
QFont systemFont(CGFloat size);

} // namespace quillon::desktop
