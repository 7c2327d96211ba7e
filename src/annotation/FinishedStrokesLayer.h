#pragma once

#include "annotation/DirtyCells.h"
#include "annotation/StrokeList.h"
#include "annotation/StrokeRenderer.h"
#include "annotation/StrokeWalk.h"
#include "platform/Damage.h"
#include "platform/Graphics.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace quillon {

/// The lower drawing layer: all finished strokes, kept composed in a bitmap.
///
/// What lies above all else is drawn at once, whatever stands below it. Everything else waits until
/// it is repainted in small steps, between which input is taken; until then the old picture stays:
/// 1. an update marks the cells in which ink comes or goes;
/// 2. a repaint begins with all cells that are marked by then, and draws the strokes that meet them
///    on a sheet of its own, a few with each step;
/// 3. when the sheet is whole, each step brings some of those cells into the bitmap, from the top
///    down. A cell in which a stroke was drawn on top in the meantime is left out and marked again;
/// 4. what was marked since then is the next repaint's, so that changes that follow each other fast
///    are seen one after the other and hold up none.
///
/// With no cell left, the bitmap equals the plain walk over the whole list, pixel for pixel. It
/// exists only while there is something to show; what was cleared is kept aside, so that an undo
/// brings it back without a walk. A clear and its undo change the bitmap at once, and are shown
/// part by part as well: a large picture that goes to the screen in one would hold up all behind
/// it.
class FinishedStrokesLayer {
public:
    explicit FinishedStrokesLayer(Graphics& graphics)
        : m_graphics(graphics) {}

    /// The size in points, and the device pixels to a point. When either is new, everything is
    /// painted anew.
    void layout(CGSize size, CGFloat scale);

    /// Makes the layer show these strokes, now or with later steps; answers what is to be shown at
    /// once.
    Damage update(const StrokeList& strokes, FadingStrokes fading);

    /// Whether there is something left to repaint or to be shown.
    bool isBehind() const { return m_repaint || !m_dirty.isEmpty() || !m_unshown.isEmpty(); }
    /// Takes one more step, however many strokes there are not much more than some 32 segments
    /// long; answers what is to be shown at once, which is about 16,000 device pixels at most times
    /// and never more than twice as many.
    Damage repaintStep();

    /// Draws the part of the layer that lies in `rect`.
    void draw(GraphicsContext& context, const CGRect& rect) const;

private:
    /// A picture that was cleared.
    struct Picture {
        StrokeList strokes;
        std::unique_ptr<Bitmap> bitmap;
        /// Where the bitmap does not show the strokes yet.
        DirtyCells dirty;
        DirtyCells highlighted;
    };
    struct Repaint {
        DirtyCells cells;
        CGRect bounds;
        StrokeWalk walk;
        std::unique_ptr<Bitmap> sheet;
    };

    /// Back to nothing, with no picture.
    void clear();
    /// Keeps the present picture, if it is one of no fading stroke.
    void putAside();
    /// Shows the picture that was put aside, if it is that of these strokes.
    bool takeBack(const StrokeList& strokes);
    /// Takes those strokes out of the difference that have come to the end of the list, unless
    /// they are many.
    static std::vector<StrokeRef> takeAppended(StrokeList::Difference& difference,
                                               const StrokeList& strokes);
    /// Answers where.
    DirtyCells drawOnTop(const std::vector<StrokeRef>& appended);
    void rememberHighlighters(const StrokeList::Difference& difference);
    /// What differs between the picture of the last update and one of these.
    DirtyCells changes(const StrokeList::Difference& difference, const FadingStrokes& fading) const;
    /// Where the bitmap does not show the strokes.
    DirtyCells behind() const;
    void beginRepaint();
    /// Brings the next part of the sheet into the bitmap.
    Damage bringOver();
    /// Takes out what one step shows.
    std::vector<CGRect> takePiece(DirtyCells& cells) const;

    Graphics& m_graphics;
    CGSize m_size;
    CGFloat m_scale = 1;
    StrokeList m_strokes;
    FadingStrokes m_fading;
    std::unique_ptr<Bitmap> m_bitmap;
    /// Not yet begun to be repainted.
    DirtyCells m_dirty{{}, 1};
    /// Where a highlighter stroke has lain since the bitmap came, and what is drawn on top may
    /// belong below it.
    DirtyCells m_highlighted{{}, 1};
    std::optional<Repaint> m_repaint;
    /// Where the bitmap has changed, which is not on the screen yet.
    DirtyCells m_unshown{{}, 1};
    std::optional<Picture> m_aside;
};

} // namespace quillon
