#pragma once

#include "annotation/PaintArea.h"
#include "desktop/qt/QtConversions.h"
#include "desktop/qt/QtGraphicsContext.h"
#include "raster/PixelPainting.h"

#include <QImage>

namespace quillon::desktop {

/// A transparent picture of a view of that size, in points.
inline QImage blankPicture(CGSize size, CGFloat scale) {
    QImage picture(devicePixels({0, 0, size.width, size.height}, scale).size(),
                   QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    return picture;
}

/// An area so wide that nothing is left out.
inline PaintArea everywhere() {
    return PaintArea({-1e6, -1e6, 2e6, 2e6});
}

/// Paints `rect`, widened to device pixels, anew from nothing: `body` gets a context and the part
/// that it is to paint.
template <typename Body>
void paintAnew(QImage& picture, const CGRect& rect, CGFloat scale, Body&& body) {
    const QRect pixels = devicePixels(rect, scale) & picture.rect();
    if (pixels.isEmpty()) {
        return;
    }
    const PixelCanvas canvas = canvasOf(picture);
    clearPixels(canvas.part(toPixelRect(pixels)));
    QtGraphicsContext context(canvas, pixels, scale);
    body(context, context.clipBounds());
}

/// The number of pixels in which two pictures differ, in that part of both.
inline int differingPixels(const QImage& a, const QImage& b, const QRect& part) {
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
        }
    }
    return count;
}

inline int differingPixels(const QImage& a, const QImage& b) {
    return differingPixels(a, b, a.rect());
}

} // namespace quillon::desktop
