#pragma once

#include "annotation/StrokeList.h"
#include "annotation/StrokeRenderer.h"
#include "platform/Bitmap.h"
#include "platform/Damage.h"

#include <memory>

namespace quillon {

/// The lower drawing layer: all finished strokes, kept composed in a bitmap.
///
/// The bitmap always equals the plain walk over the whole list, pixel for pixel: a change repaints
/// by that walk what it touched, or draws on top when nothing lies above the new stroke. It exists
/// only while there is something to show.
class FinishedStrokesLayer {
public:
    explicit FinishedStrokesLayer(Graphics& graphics)
        : m_graphics(graphics) {}

    /// The size in points, and the device pixels to a point. Everything is painted anew.
    void layout(CGSize size, CGFloat scale);

    /// Makes the layer show these strokes; answers where the picture has changed.
    Damage update(const StrokeList& strokes, FadingStrokes fading);

    /// Draws the part of the layer that lies in `rect`.
    void draw(GraphicsContext& context, const CGRect& rect) const;

private:
    bool liesOnTop(const FinishedStroke& added) const;
    void drawOnTop(const FinishedStroke& added);
    void repaint(const CGRect& rect);

    Graphics& m_graphics;
    CGSize m_size;
    CGFloat m_scale = 1;
    StrokeList m_strokes;
    FadingStrokes m_fading;
    std::unique_ptr<Bitmap> m_bitmap;
};

} // namespace quillon
