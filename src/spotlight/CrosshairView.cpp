#include "spotlight/CrosshairView.h"

namespace quillon {

void CrosshairView::paint(GraphicsContext& context, CGSize size) {
    constexpr CGFloat armEnd = 20;
    constexpr CGFloat gap = 8;
    const CGFloat cx = size.width / 2;
    const CGFloat cy = size.height / 2;
    Path arms;
    arms.move({cx - armEnd, cy});
    arms.addLine({cx - gap, cy});
    arms.move({cx + gap, cy});
    arms.addLine({cx + armEnd, cy});
    arms.move({cx, cy - armEnd});
    arms.addLine({cx, cy - gap});
    arms.move({cx, cy + gap});
    arms.addLine({cx, cy + armEnd});
    context.stroke(arms, Color::white, {.lineWidth = 1});
}

} // namespace quillon
