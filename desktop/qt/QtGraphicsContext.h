#pragma once

#include "platform/GraphicsContext.h"

#include <QPainter>
#include <QPainterPath>

#include <memory>

namespace quillon::desktop {

class QtLayer;

/// Carries out drawing with a QPainter. The painter's coordinates are points, its clip stands.
class QtGraphicsContext : public GraphicsContext {
public:
    /// `clip` is the part worth painting, in points; `scale` is the number of device pixels to a
    /// point.
    QtGraphicsContext(QPainter& painter, const CGRect& clip, CGFloat scale);
    ~QtGraphicsContext() override;

    CGRect clipBounds() const override { return m_clip; }
    void setBlendMode(BlendMode mode) override;
    void setOpacity(double opacity) override;
    void fill(const Path& path, const Color& color) override;
    void fillEvenOdd(const Path& path, const Color& color) override;
    void stroke(const Path& path, const Color& color, const StrokeStyle& style) override;
    void strokeWithShadow(const Path& path, const Color& color, const StrokeStyle& style,
                          const Shadow& shadow) override;
    void drawText(const Text& text, CGPoint at, Anchor anchor) override;
    void clear(const CGRect& rect) override;
    void fillRect(const CGRect& rect, const Color& color) override;
    void draw(const Bitmap& bitmap, const CGRect& rect) override;
    void draw(const Bitmap& bitmap, const CGRect& rect, CGPoint origin) override;
    void draw(const CGImage& image, const CGRect& rect) override;

protected:
    GraphicsContext& beginLayer() override;
    void endLayer() override;

private:
    friend class QtLayer;

    void drawShadow(const QPainterPath& outline, const Shadow& shadow);
    /// Draws pixels of an image at device pixels of the painter, one to one.
    void drawPixels(const QImage& image, const QRect& from, QPoint to);

    QPainter& m_painter;
    CGRect m_clip;
    CGFloat m_scale;
    std::unique_ptr<QtLayer> m_layer;
};

} // namespace quillon::desktop
