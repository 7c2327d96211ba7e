#pragma once

#include "annotation/DirtyCells.h"
#include "annotation/StrokeList.h"
#include "annotation/StrokeRenderer.h"
#include "platform/Damage.h"
#include "platform/Graphics.h"

#include <memory>

namespace quillon {

/// The lower drawing layer: all finished strokes, kept composed in a bitmap.
///
/// The bitmap always equals the plain walk over the whole list, pixel for pixel: a change repaints
/// the cells that it touched, by one walk over what meets them, or draws on top when nothing lies
/// above the new stroke. It exists only while there is something to show; what was cleared is kept
/// aside, so that an undo brings it back without a walk.
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
    /// What differs between the picture of the last update and one of these.
    DirtyCells changes(const StrokeList::Difference& difference, const FadingStrokes& fading) const;
    /// `difference` is nothing but a stroke that is drawn after all others, in the dirty cells.
    bool isOneOnTop(const StrokeList::Difference& difference, const StrokeList& strokes,
                    const DirtyCells& dirty) const;
    void drawOnTop(const FinishedStroke& added);
    void repaint(const DirtyCells& dirty);
    /// Keeps the present picture, of no fading stroke.
    void putAside();
    /// Shows the picture that was put aside, if it is that of the present strokes.
    bool takeBack();
    /// Into a fresh bitmap.
    void paintAll();

    Graphics& m_graphics;
    CGSize m_size;
    CGFloat m_scale = 1;
    StrokeList m_strokes;
    FadingStrokes m_fading;
    std::unique_ptr<Bitmap> m_bitmap;
    struct {
        StrokeList strokes;
        std::unique_ptr<Bitmap> bitmap;
    } m_aside;
};

} // namespace quillon
