#include "desktop/qt/QtGraphicsContext.h"

#include "desktop/qt/Blur.h"
#include "desktop/qt/QtBitmap.h"
#include "desktop/qt/QtConversions.h"
#include "desktop/qt/QtLayer.h"
#include "platform/CGImage.h"
#include "raster/Blending.h"
#include "raster/InkPainting.h"
#include "raster/PixelPainting.h"

#include <QFontMetricsF>

#include <algorithm>
#include <utility>

namespace quillon::desktop {

namespace {

QPainter::CompositionMode compositionMode(BlendMode mode) {
    return mode == BlendMode::plusLighter ? QPainter::CompositionMode_Plus
                                          : QPainter::CompositionMode_SourceOver;
}

std::uint32_t wholeOpacity(double opacity) {
    return static_cast<std::uint32_t>(qRound(std::clamp(opacity, 0.0, 1.0) * opaqueAlpha));
}

} // namespace

QtGraphicsContext::QtGraphicsContext(const PixelCanvas& canvas, QRegion clip, CGFloat scale)
    : m_canvas(canvas)
    , m_clip(std::move(clip))
    , m_scale(scale) {
    const QRectF bounds = m_clip.boundingRect();
    m_clipBounds = {bounds.x() / scale, bounds.y() / scale, bounds.width() / scale,
                    bounds.height() / scale};
}

QtGraphicsContext::~QtGraphicsContext() = default;

QPainter& QtGraphicsContext::painter() {
    if (!m_painter) {
        m_image = imageOf(m_canvas);
        m_painter.emplace(&m_image);
        m_painter->translate(-m_canvas.place.left, -m_canvas.place.top);
        m_painter->setClipRegion(m_clip);
        m_painter->scale(m_scale, m_scale);
        m_painter->setRenderHint(QPainter::Antialiasing);
    }
    m_painter->setCompositionMode(compositionMode(m_blendMode));
    m_painter->setOpacity(m_opacity);
    return *m_painter;
}

void QtGraphicsContext::setBlendMode(BlendMode mode) {
    m_blendMode = mode;
}

void QtGraphicsContext::setOpacity(double opacity) {
    m_opacity = opacity;
}

void QtGraphicsContext::fill(const Path& path, const Color& color) {
    painter().fillPath(toQPainterPath(path), toQColor(color));
}

void QtGraphicsContext::fillEvenOdd(const Path& path, const Color& color) {
    QPainterPath outlines = toQPainterPath(path);
    outlines.setFillRule(Qt::OddEvenFill);
    painter().fillPath(outlines, toQColor(color));
}

template <typename Body>
void QtGraphicsContext::forEachPart(const PixelRect& rect, Body&& body) {
    for (const QRect& part : m_clip) {
        const PixelCanvas canvas = m_canvas.part(toPixelRect(part)).part(rect);
        if (!canvas.place.isEmpty()) {
            body(canvas);
        }
    }
}

void QtGraphicsContext::stroke(const Path& path, const Color& color, const StrokeStyle& style) {
    if (style.lineCap != LineCap::round || style.lineJoin != LineJoin::round) {
        painter().strokePath(toQPainterPath(path), toQPen(color, style, m_scale));
        return;
    }
    const auto lines = flattened(path, m_scale);
    const Ink ink{premultipliedPixel(color, m_opacity), style.lineWidth * m_scale, m_blendMode};
    forEachPart(m_canvas.place, [&](const PixelCanvas& canvas) { paintInk(lines, ink, canvas); });
}

void QtGraphicsContext::strokeWithShadow(const Path& path, const Color& color,
                                         const StrokeStyle& style, const Shadow& shadow) {
    QPainterPathStroker stroker(toQPen(color, style, m_scale));
    const QPainterPath outline = stroker.createStroke(toQPainterPath(path));
    drawShadow(outline.translated(shadow.offset.width, shadow.offset.height), shadow);
    stroke(path, color, style);
}

void QtGraphicsContext::drawShadow(const QPainterPath& outline, const Shadow& shadow) {
    const CGFloat deviation = shadow.radius / 2;
    const CGRect reach = fromQRectF(outline.boundingRect()).outset(blurReach(deviation));
    const QRect pixels = devicePixels(reach, m_scale);
    QImage picture(pixels.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-pixels.topLeft());
    painter.scale(m_scale, m_scale);
    painter.fillPath(outline, Qt::black);
    painter.end();
    const QImage blurry = tinted(blurred(picture, deviation * m_scale), toQColor(shadow.color));
    drawPixels(pictureOf(blurry, pixels.topLeft()), toPixelRect(pixels));
}

void QtGraphicsContext::drawText(const Text& text, CGPoint at, Anchor anchor) {
    const QFont font = systemFont(text.fontSize);
    const QFontMetricsF metrics(font);
    const QString string = QString::fromStdString(text.string);
    QPointF origin = toQPointF(at) + QPointF(0, metrics.ascent());
    if (anchor == Anchor::center) {
        origin -= QPointF(metrics.horizontalAdvance(string), metrics.height()) / 2;
    }
    painter().setFont(font);
    painter().setPen(toQColor(text.color));
    painter().drawText(origin, string);
}

void QtGraphicsContext::clear(const CGRect& rect) {
    forEachPart(toPixelRect(devicePixels(rect, m_scale)), clearPixels);
}

void QtGraphicsContext::fillRect(const CGRect& rect, const Color& color) {
    const std::uint32_t pixel = premultipliedPixel(color, m_opacity);
    forEachPart(toPixelRect(devicePixels(rect, m_scale)),
                [&](const PixelCanvas& canvas) { fillPixels(canvas, pixel, m_blendMode); });
}

void QtGraphicsContext::draw(const Bitmap& bitmap, const CGRect& rect) {
    draw(bitmap, rect, {});
}

void QtGraphicsContext::draw(const Bitmap& bitmap, const CGRect& rect, CGPoint origin) {
    const QPoint corner(qRound(origin.x * m_scale), qRound(origin.y * m_scale));
    drawPixels(pictureOf(static_cast<const QtBitmap&>(bitmap).image(), corner),
               toPixelRect(devicePixels(rect, m_scale)));
}

void QtGraphicsContext::draw(const CGImage& image, const CGRect& rect) {
    const PixelRows& rows = *image.rows;
    const QImage pixels(reinterpret_cast<const uchar*>(rows.pixels.data()), rows.width, rows.height,
                        QImage::Format_RGB32);
    painter().setRenderHint(QPainter::Antialiasing, false);
    painter().drawImage(toQRectF(rect), pixels, toQRectF(image.part));
    painter().setRenderHint(QPainter::Antialiasing);
}

void QtGraphicsContext::drawPixels(const PixelPicture& picture, const PixelRect& part) {
    forEachPart(part, [&](const PixelCanvas& canvas) {
        quillon::drawPixels(picture, canvas, wholeOpacity(m_opacity), m_blendMode);
    });
}

GraphicsContext& QtGraphicsContext::beginLayer() {
    m_layer = std::make_unique<QtLayer>(*this);
    return *m_layer;
}

void QtGraphicsContext::endLayer() {
    m_layer->finish();
    m_layer.reset();
}

} // namespace quillon::desktop
