#pragma once

#include "platform/GraphicsContext.h"

#include <QImage>

#include <functional>
#include <memory>

namespace quillon::desktop {

class QtGraphicsContext;

/// A transparent layer above a context.
///
/// A lone draw in a fresh layer gives the same pixels as a direct draw into the receiver: over
/// nothing, every blend mode leaves the source as it is. So the first draw is kept back, and
/// 1. a second draw makes the layer real, with a picture of its own;
/// 2. an end without a second one draws the first directly.
class QtLayer : public GraphicsContext {
public:
    explicit QtLayer(QtGraphicsContext& receiver);
    ~QtLayer() override;

    /// Draws what became of the layer into the receiver.
    void finish();

    CGRect clipBounds() const override;
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
    using Draw = std::function<void(GraphicsContext&)>;

    void perform(Draw draw);
    /// The layer's own picture, made when it is first needed.
    QtGraphicsContext& ownContext();

    QtGraphicsContext& m_receiver;
    BlendMode m_blendMode = BlendMode::normal;
    double m_opacity = 1;
    Draw m_loneDraw;
    double m_opacityOfLoneDraw = 1;
    QImage m_image;
    std::unique_ptr<QtGraphicsContext> m_context;
};

} // namespace quillon::desktop
