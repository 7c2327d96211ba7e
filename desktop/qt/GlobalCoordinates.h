#pragma once

#include "foundation/Geometry.h"

#include <QPointF>
#include <QRectF>

/// The one place where the desktop's coordinates are turned over.
///
/// The desktop counts device-independent pixels from the top left, y downward; the system counts
/// points in global coordinates, from the bottom left of the primary screen, y upward. One
/// device-independent pixel is one point. `primaryScreen` is that screen's geometry as the desktop
/// gives it; it need not lie at the desktop's origin.
namespace quillon::desktop {

/// The X server counts device pixels. A screen's origin is the same in both; only what lies on the
/// screen is scaled, by the number of device pixels to a point.
inline QPointF desktopFromDevicePixels(QPointF pixels, QPointF screenOrigin, qreal scale) {
    return screenOrigin + (pixels - screenOrigin) / scale;
}

inline QPointF devicePixelsFromDesktop(QPointF point, QPointF screenOrigin, qreal scale) {
    return screenOrigin + (point - screenOrigin) * scale;
}

inline CGPoint globalFromDesktop(QPointF point, const QRectF& primaryScreen) {
    return {point.x() - primaryScreen.left(), primaryScreen.bottom() - point.y()};
}

inline QPointF desktopFromGlobal(CGPoint point, const QRectF& primaryScreen) {
    return {primaryScreen.left() + point.x, primaryScreen.bottom() - point.y};
}

inline CGRect globalFromDesktop(const QRectF& rect, const QRectF& primaryScreen) {
    const CGPoint bottomLeft = globalFromDesktop(rect.bottomLeft(), primaryScreen);
    return {bottomLeft.x, bottomLeft.y, rect.width(), rect.height()};
}

inline QRectF desktopFromGlobal(const CGRect& rect, const QRectF& primaryScreen) {
    const QPointF topLeft = desktopFromGlobal(CGPoint{rect.minX(), rect.maxY()}, primaryScreen);
    return {topLeft, QSizeF(rect.width, rect.height)};
}

} // namespace quillon::desktop
