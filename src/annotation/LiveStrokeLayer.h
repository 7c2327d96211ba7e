#pragma once

#include "annotation/SegmentIndex.h"
#include "foundation/UUID.h"
#include "model/DrawingStroke.h"
#include "platform/Bitmap.h"
#include "platform/Damage.h"

#include <cstddef>
#include <optional>

namespace quillon {

/// The upper drawing layer: the stroke under the pointer, painted live. It follows a freehand
/// stroke as it grows, so that a new point damages the new tail alone.
class LiveStrokeLayer {
public:
    explicit LiveStrokeLayer(Graphics& graphics)
        : m_graphics(graphics) {}

    /// Makes the layer show this stroke, or none; answers where the picture has changed.
    Damage update(const std::optional<DrawingStroke>& stroke);

    /// Draws `stroke`, which must be the one of the last update.
    void draw(GraphicsContext& context, const std::optional<DrawingStroke>& stroke) const;

private:
    /// What stands on the screen.
    struct Painted {
        UUID id;
        std::size_t pointCount = 0;
        Damage ink;
        /// The last segment bends anew when a point follows, so its old ink has to go.
        Damage inkOfLastSegment;
        SegmentIndex segments;
    };

    Damage showOther(const DrawingStroke& stroke);
    Damage showGrown(const DrawingStroke& stroke);

    Graphics& m_graphics;
    std::optional<Painted> m_painted;
};

} // namespace quillon
