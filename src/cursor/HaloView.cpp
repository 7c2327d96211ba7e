#include "cursor/HaloView.h"

#include "cursor/CenteredFrame.h"
#include "cursor/RhombusShape.h"

namespace quillon {

namespace {

constexpr CGFloat kLineWidth = 3;
constexpr CGFloat kInset = 6;
constexpr CGFloat kCornerPart = 0.25;
constexpr double kGlowOpacity = 0.5;
constexpr CGFloat kGlowRadius = 4;

} // namespace

void HaloView::layout(CGSize size, CGFloat /*scale*/) {
    m_bounds = {0, 0, size.width, size.height};
    setNeedsDisplay(m_bounds);
}

void HaloView::paint(GraphicsContext& context, const CGRect& /*rect*/) {
    context.strokeWithShadow(outline(), m_color, {.lineWidth = kLineWidth},
                             {m_color.opacity(kGlowOpacity), kGlowRadius, {}});
}

Path HaloView::outline() const {
    const CGRect frame = centeredFrame(m_bounds.center(), m_size - kInset);
    Path path;
    switch (m_shape) {
    case HaloShape::ring:
        path.addEllipse(frame);
        break;
    case HaloShape::squircle:
        // The radius follows the whole view, not the smaller frame.
        path.addContinuousRoundedRect(frame, m_size * kCornerPart);
        break;
    case HaloShape::rhombus:
        path = RhombusShape().path(frame);
        break;
    }
    return path;
}

} // namespace quillon
