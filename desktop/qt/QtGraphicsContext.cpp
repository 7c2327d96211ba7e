#include "desktop/qt/QtGraphicsContext.h"

#include "desktop/qt/Blur.h"
#include "desktop/qt/QtBitmap.h"
#include "desktop/qt/QtConversions.h"
#include "desktop/qt/QtLayer.h"
#include "platform/CGImage.h"

#include <QFontMetricsF>

namespace quillon::desktop {

QtGraphicsContext::QtGraphicsContext(QPainter& painter, const CGRect& clip, CGFloat scale)
    : m_painter(painter)
    , m_clip(clip)
    , m_scale(scale) {
    m_painter.setRenderHint(QPainter::Antialiasing);
}

QtGraphicsContext::~QtGraphicsContext() = default;

void QtGraphicsContext::setBlendMode(BlendMode mode) {
    m_painter.setCompositionMode(mode == BlendMode::plusLighter
                                     ? QPainter::CompositionMode_Plus
                                     : QPainter::CompositionMode_SourceOver);
}

void QtGraphicsContext::setOpacity(double opacity) {
    m_painter.setOpacity(opacity);
}

void QtGraphicsContext::fill(const Path& path, const Color& color) {
    m_painter.fillPath(toQPainterPath(path), toQColor(color));
}

void QtGraphicsContext::fillEvenOdd(const Path& path, const Color& color) {
    QPainterPath outlines = toQPainterPath(path);
    outlines.setFillRule(Qt::OddEvenFill);
    m_painter.fillPath(outlines, toQColor(color));
}

void QtGraphicsContext::stroke(const Path& path, const Color& color, const StrokeStyle& style) {
    m_painter.strokePath(toQPainterPath(path), toQPen(color, style, m_scale));
}

void QtGraphicsContext::strokeWithShadow(const Path& path, const Color& color,
                                         const StrokeStyle& style, const Shadow& shadow) {
    const QPen pen = toQPen(color, style, m_scale);
    QPainterPathStroker stroker(pen);
    const QPainterPath outline = stroker.createStroke(toQPainterPath(path));
    drawShadow(outline.translated(shadow.offset.width, shadow.offset.height), shadow);
    m_painter.strokePath(toQPainterPath(path), pen);
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
    drawPixels(tinted(blurred(picture, deviation * m_scale), toQColor(shadow.color)),
               picture.rect(), pixels.topLeft());
}

void QtGraphicsContext::drawText(const Text& text, CGPoint at, Anchor anchor) {
    const QFont font = systemFont(text.fontSize);
    const QFontMetricsF metrics(font);
    const QString string = QString::fromStdString(text.string);
    QPointF origin = toQPointF(at) + QPointF(0, metrics.ascent());
    if (anchor == Anchor::center) {
        origin -= QPointF(metrics.horizontalAdvance(string), metrics.height()) / 2;
    }
    m_painter.setFont(font);
    m_painter.setPen(toQColor(text.color));
    m_painter.drawText(origin, string);
}

void QtGraphicsContext::clear(const CGRect& rect) {
    const auto mode = m_painter.compositionMode();
    m_painter.setCompositionMode(QPainter::CompositionMode_Clear);
    m_painter.setRenderHint(QPainter::Antialiasing, false);
    m_painter.fillRect(toQRectF(rect), Qt::transparent);
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setCompositionMode(mode);
}

void QtGraphicsContext::fillRect(const CGRect& rect, const Color& color) {
    m_painter.setRenderHint(QPainter::Antialiasing, false);
    m_painter.fillRect(toQRectF(rect), toQColor(color));
    m_painter.setRenderHint(QPainter::Antialiasing);
}

void QtGraphicsContext::draw(const Bitmap& bitmap, const CGRect& rect) {
    draw(bitmap, rect, {});
}

void QtGraphicsContext::draw(const Bitmap& bitmap, const CGRect& rect, CGPoint origin) {
    const QImage& image = static_cast<const QtBitmap&>(bitmap).image();
    const QPoint corner(qRound(origin.x * m_scale), qRound(origin.y * m_scale));
    const QRect pixels = devicePixels(rect, m_scale).intersected(image.rect().translated(corner));
    drawPixels(image, pixels.translated(-corner), pixels.topLeft());
}

void QtGraphicsContext::draw(const CGImage& image, const CGRect& rect) {
    const PixelRows& rows = *image.rows;
    const QImage pixels(reinterpret_cast<const uchar*>(rows.pixels.data()), rows.width, rows.height,
                        QImage::Format_RGB32);
    m_painter.setRenderHint(QPainter::Antialiasing, false);
    m_painter.drawImage(toQRectF(rect), pixels, toQRectF(image.part));
    m_painter.setRenderHint(QPainter::Antialiasing);
}

void QtGraphicsContext::drawPixels(const QImage& image, const QRect& from, QPoint to) {
    if (from.isEmpty()) {
        return;
    }
    // With points and pixels brought to the same size the painter copies rows instead of sampling.
    const QTransform inPoints = m_painter.worldTransform();
    m_painter.setWorldTransform(QTransform::fromScale(1 / m_scale, 1 / m_scale) * inPoints);
    m_painter.drawImage(to, image, from);
    m_painter.setWorldTransform(inPoints);
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
