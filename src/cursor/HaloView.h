#pragma once

#include "model/HaloShape.h"
#include "platform/ContentView.h"

namespace quillon {

/// The look of the halo: one outline with a soft glow of its own hue, in the middle of the window.
/// It never changes; another look is another view.
class HaloView : public ContentView {
public:
    /// `size` is the side of the view's frame, in points. The outline stands in a frame 6 smaller,
    /// so that the stroke and part of the glow stay inside.
    HaloView(HaloShape shape, const Color& color, CGFloat size)
        : m_shape(shape)
        , m_color(color)
        , m_size(size) {}

    HaloShape shape() const { return m_shape; }
    const Color& color() const { return m_color; }
    CGFloat size() const { return m_size; }

    void layout(CGSize size, CGFloat scale) override;
    void paint(GraphicsContext& context, const CGRect& rect) override;

private:
    Path outline() const;

    HaloShape m_shape;
    Color m_color;
    CGFloat m_size;
    CGRect m_bounds;
};

} // namespace quillon
