#pragma once

#include "platform/GraphicsContext.h"
#include "raster/PixelCanvas.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QRegion>

#include <cstdint>
#include <memory>
#include <optional>

namespace quillon::desktop {

class QtLayer;

/// Draws into pixels. Lines with round caps and joins, bitmaps and whole pixels it draws by itself;
/// for everything else it opens a QPainter, which costs more than many a line.
class QtGraphicsContext : public GraphicsContext {
public:
    /// Draws nowhere but in `clip`, in device pixels of the view, as far as the canvas goes;
    /// `scale` is the number of device pixels to a point.
    QtGraphicsContext(const PixelCanvas& canvas, QRegion clip, CGFloat scale);
    ~QtGraphicsContext() override;

    CGRect clipBounds() const override { return m_clipBounds; }
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

    /// In points, with its clip, its blend mode and its opacity up to date.
    QPainter& painter();
    void drawShadow(const QPainterPath& outline, const Shadow& shadow);
    void drawPixels(const PixelPicture& picture, const PixelRect& part);
    /// Calls `body` with the canvas of each rectangle of the clip, as far as it lies in `rect`.
    template <typename Body>
    void forEachPart(const PixelRect& rect, Body&& body);

    PixelCanvas m_canvas;
    QRegion m_clip;
    CGFloat m_scale;
    CGRect m_clipBounds;
    BlendMode m_blendMode = BlendMode::normal;
    double m_opacity = 1;
    std::unique_ptr<QtLayer> m_layer;
    QImage m_image;
    std::optional<QPainter> m_painter;
};

} // namespace quillon::desktop
