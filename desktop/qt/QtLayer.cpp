#include "desktop/qt/QtLayer.h"

#include "desktop/qt/QtConversions.h"
#include "desktop/qt/QtGraphicsContext.h"
#include "platform/CGImage.h"

#include <utility>

namespace quillon::desktop {

QtLayer::QtLayer(QtGraphicsContext& receiver)
    : m_receiver(receiver) {}

QtLayer::~QtLayer() = default;

void QtLayer::finish() {
    if (m_context) {
        const PixelCanvas pixels = m_context->m_canvas;
        m_context.reset();
        m_receiver.drawPixels(pixels, pixels.place);
        return;
    }
    if (m_loneDraw) {
        const double opacity =
            std::exchange(m_receiver.m_opacity, m_receiver.m_opacity * m_opacityOfLoneDraw);
        m_loneDraw(m_receiver);
        m_receiver.m_opacity = opacity;
    }
}

CGRect QtLayer::clipBounds() const {
    return m_receiver.clipBounds();
}

void QtLayer::setBlendMode(BlendMode mode) {
    m_blendMode = mode;
    if (m_context) {
        m_context->setBlendMode(mode);
    }
}

void QtLayer::setOpacity(double opacity) {
    m_opacity = opacity;
    if (m_context) {
        m_context->setOpacity(opacity);
    }
}

void QtLayer::fill(const Path& path, const Color& color) {
    perform([path, color](GraphicsContext& context) { context.fill(path, color); });
}

void QtLayer::fillEvenOdd(const Path& path, const Color& color) {
    perform([path, color](GraphicsContext& context) { context.fillEvenOdd(path, color); });
}

void QtLayer::stroke(const Path& path, const Color& color, const StrokeStyle& style) {
    perform([path, color, style](GraphicsContext& context) { context.stroke(path, color, style); });
}

void QtLayer::strokeWithShadow(const Path& path, const Color& color, const StrokeStyle& style,
                               const Shadow& shadow) {
    ownContext().strokeWithShadow(path, color, style, shadow);
}

void QtLayer::drawText(const Text& text, CGPoint at, Anchor anchor) {
    perform([text, at, anchor](GraphicsContext& context) { context.drawText(text, at, anchor); });
}

void QtLayer::clear(const CGRect& rect) {
    ownContext().clear(rect);
}

void QtLayer::fillRect(const CGRect& rect, const Color& color) {
    perform([rect, color](GraphicsContext& context) { context.fillRect(rect, color); });
}

void QtLayer::draw(const Bitmap& bitmap, const CGRect& rect, CGPoint origin) {
    ownContext().draw(bitmap, rect, origin);
}

void QtLayer::draw(const Bitmap& bitmap, const CGRect& rect) {
    ownContext().draw(bitmap, rect);
}

void QtLayer::draw(const CGImage& image, const CGRect& rect) {
    perform([image, rect](GraphicsContext& context) { context.draw(image, rect); });
}

GraphicsContext& QtLayer::beginLayer() {
    return ownContext().beginLayer();
}

void QtLayer::endLayer() {
    ownContext().endLayer();
}

void QtLayer::perform(Draw draw) {
    if (!m_context && !m_loneDraw) {
        m_loneDraw = std::move(draw);
        m_opacityOfLoneDraw = m_opacity;
        return;
    }
    draw(ownContext());
}

QtGraphicsContext& QtLayer::ownContext() {
    if (!m_context) {
        const QRect pixels = m_receiver.m_clip.boundingRect();
        m_image = QImage(pixels.size(), QImage::Format_ARGB32_Premultiplied);
        m_image.fill(Qt::transparent);
        m_context = std::make_unique<QtGraphicsContext>(canvasOf(m_image, pixels.topLeft()), pixels,
                                                        m_receiver.m_scale);
        if (m_loneDraw) {
            m_context->setOpacity(m_opacityOfLoneDraw);
            std::exchange(m_loneDraw, nullptr)(*m_context);
        }
        m_context->setBlendMode(m_blendMode);
        m_context->setOpacity(m_opacity);
    }
    return *m_context;
}

} // namespace quillon::desktop
