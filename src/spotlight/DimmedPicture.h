#pragma once

#include "platform/Graphics.h"
#include "platform/StampedPicture.h"
#include "spotlight/Circle.h"

#include <memory>
#include <optional>

namespace quillon {

/// One colour everywhere but in a circle.
///
/// To fill a curve costs a hundred times what it costs to copy its pixels. So the square round the
/// circle is painted once and then drawn wherever the circle stands; it is painted anew when the
/// circle changes its size, its colour, or its place within a device pixel. The pixels are those
/// of the even-odd fill of the whole.
class DimmedPicture {
public:
    explicit DimmedPicture(Graphics& graphics)
        : m_graphics(graphics) {}

    /// Paints what stands in `rect`, which is made of whole device pixels; `scale` of them are a
    /// point.
    void paint(GraphicsContext& context, const CGRect& rect, const Circle& circle,
               const Color& color, CGFloat scale);
    /// The same as a value; none for a circle whose square would be too large to keep.
    std::optional<StampedPicture> stamped(const Circle& circle, const Color& color, CGFloat scale);

private:
    /// What the square's pixels depend on.
    struct Look {
        /// In device pixels.
        CGFloat radius = 0;
        /// Where in its device pixel the centre lies, in parts of it.
        CGPoint phase;
        Color color = Color::clear;
        CGFloat scale = 1;

        /// Half of the square's side, in device pixels.
        CGFloat reach() const;
        friend bool operator==(const Look&, const Look&) = default;
    };

    void paintSquare(const Look& look);

    Graphics& m_graphics;
    Look m_look;
    std::shared_ptr<const Bitmap> m_square;
};

} // namespace quillon
