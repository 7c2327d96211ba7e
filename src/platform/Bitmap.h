#pragma once

#include "foundation/Geometry.h"
#include "platform/GraphicsContext.h"

#include <span>
#include <utility>

namespace quillon {

/// A picture kept in memory that is painted once and drawn often. It starts transparent. Its
/// origin is that of the view for which it was made.
class Bitmap {
public:
    virtual ~Bitmap() = default;

    /// In points.
    virtual CGSize size() const = 0;
    /// Device pixels to a point.
    virtual CGFloat scale() const = 0;

    /// Calls `body` with a context that paints into the bitmap and nowhere but in the rectangles of
    /// `clip`, which are widened to whole device pixels and may overlap.
    template <typename Body>
    void paint(std::span<const CGRect> clip, Body&& body) {
        body(beginPainting(clip));
        endPainting();
    }
    template <typename Body>
    void paint(const CGRect& clip, Body&& body) {
        paint(std::span(&clip, 1), std::forward<Body>(body));
    }

protected:
    virtual GraphicsContext& beginPainting(std::span<const CGRect> clip) = 0;
    virtual void endPainting() = 0;
};

} // namespace quillon
