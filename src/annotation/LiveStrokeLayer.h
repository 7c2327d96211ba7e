#pragma once

#include "annotation/SegmentIndex.h"
#include "foundation/UUID.h"
#include "model/DrawingStroke.h"
#include "platform/Damage.h"
#include "platform/Graphics.h"

#include <cstddef>
#include <memory>
#include <optional>

namespace quillon {

/// The upper drawing layer: the stroke under the pointer, painted live. It follows a freehand
/// stroke as it grows, so that a new point damages the new tail alone. A shape has no tail: each
/// move changes all of it, in many parts of the screen, so it is drawn once into a bitmap of which
/// the parts are then copied.
class LiveStrokeLayer {
public:
    explicit LiveStrokeLayer(Graphics& graphics)
        : m_graphics(graphics) {}

    /// The size in points, and the device pixels to a point.
    void layout(CGSize size, CGFloat scale);

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
    /// Draws a shape into its bitmap. `damage` holds the ink that stood there, and the new.
    void compose(const DrawingStroke& shape, const Damage& damage);

    Graphics& m_graphics;
    CGSize m_size;
    CGFloat m_scale = 1;
    std::optional<Painted> m_painted;
    /// While a shape is shown.
    std::unique_ptr<Bitmap> m_shape;
};

} // namespace quillon
