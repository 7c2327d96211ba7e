#include "desktop/qt/QtConversions.h"

#include <QGuiApplication>

#include <QtMath>

#include <algorithm>

namespace quillon::desktop {

namespace {

constexpr qsizetype kBytesPerPixel = sizeof(std::uint32_t);

} // namespace

QColor toQColor(const Color& color) {
    const auto parts = color.resolved();
    const auto clamped = [](double part) { return static_cast<float>(std::clamp(part, 0.0, 1.0)); };
    return QColor::fromRgbF(clamped(parts.red), clamped(parts.green), clamped(parts.blue),
                            clamped(parts.alpha));
}

QPainterPath toQPainterPath(const Path& path) {
    QPainterPath result;
    result.setFillRule(Qt::WindingFill);
    result.reserve(static_cast<int>(path.points().size()));
    auto point = path.points().begin();
    for (const auto verb : path.verbs()) {
        switch (verb) {
        case Path::Verb::move:
            result.moveTo(toQPointF(*point++));
            break;
        case Path::Verb::line:
            result.lineTo(toQPointF(*point++));
            break;
        case Path::Verb::curve:
            result.cubicTo(toQPointF(point[0]), toQPointF(point[1]), toQPointF(point[2]));
            point += 3;
            break;
        case Path::Verb::close:
            result.closeSubpath();
            break;
        }
    }
    return result;
}

QPen toQPen(const Color& color, const StrokeStyle& style, CGFloat scale) {
    // A line no wider than a pixel goes another way through the toolkit, with edges of another
    // kind.
    const CGFloat smallestWidth = 1.001 / scale;
    return QPen(toQColor(color), std::max(style.lineWidth, smallestWidth), Qt::SolidLine,
                style.lineCap == LineCap::round ? Qt::RoundCap : Qt::FlatCap,
                style.lineJoin == LineJoin::round ? Qt::RoundJoin : Qt::MiterJoin);
}

QRect devicePixels(const CGRect& rect, CGFloat scale) {
    const auto low = [scale](CGFloat edge) { return qFloor(edge * scale + 1e-6); };
    const auto high = [scale](CGFloat edge) { return qCeil(edge * scale - 1e-6); };
    return QRect(QPoint(low(rect.minX()), low(rect.minY())),
                 QPoint(high(rect.maxX()) - 1, high(rect.maxY()) - 1));
}

PixelCanvas canvasOf(QImage& image, QPoint corner) {
    return {toPixelRect({corner, image.size()}), reinterpret_cast<std::uint32_t*>(image.bits()),
            image.bytesPerLine() / kBytesPerPixel};
}

PixelPicture pictureOf(const QImage& image, QPoint corner) {
    return {toPixelRect({corner, image.size()}),
            reinterpret_cast<const std::uint32_t*>(image.constBits()),
            image.bytesPerLine() / kBytesPerPixel};
}

QImage imageOf(const PixelCanvas& canvas) {
    return QImage(reinterpret_cast<uchar*>(canvas.firstPixel), canvas.place.width(),
                  canvas.place.height(), canvas.rowLength * kBytesPerPixel,
                  QImage::Format_ARGB32_Premultiplied);
}

std::optional<PixelCanvas> canvasOf(QPaintDevice& device) {
    if (device.devType() != QInternal::Image) {
        return std::nullopt;
    }
    auto& image = static_cast<QImage&>(device);
    return image.format() == QImage::Format_ARGB32_Premultiplied ? std::optional(canvasOf(image))
                                                                 : std::nullopt;
}

xcb_rectangle_t toXRectangle(const QRect& pixels) {
    return {static_cast<std::int16_t>(pixels.x()), static_cast<std::int16_t>(pixels.y()),
            static_cast<std::uint16_t>(pixels.width()),
            static_cast<std::uint16_t>(pixels.height())};
}

QFont systemFont(CGFloat size) {
    QFont font = QGuiApplication::font();
    font.setPixelSize(std::max(1, qRound(size)));
    return font;
}

} // namespace quillon::desktop
