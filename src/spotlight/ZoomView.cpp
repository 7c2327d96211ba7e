#include "spotlight/ZoomView.h"

#include "spotlight/CrosshairView.h"
#include "spotlight/ZoomGeometry.h"

#include <utility>

namespace quillon {

namespace {

constexpr CGFloat kCornerRadius = 12;
constexpr CGFloat kCaptionFontSize = 10;

} // namespace

ZoomView::ZoomView(Value value)
    : m_value(std::move(value)) {}

void ZoomView::setValue(Value value) {
    if (value == m_value) {
        return;
    }
    m_value = std::move(value);
    setNeedsDisplay(bounds());
}

void ZoomView::layout(CGSize size, CGFloat /*scale*/) {
    m_size = size;
    setNeedsDisplay(bounds());
}

void ZoomView::paint(GraphicsContext& context, const CGRect& /*rect*/) {
    if (m_value.image) {
        paintPicture(context);
    } else {
        paintPlaceholder(context);
    }
    if (m_value.showCrosshair) {
        CrosshairView::paint(context, m_size);
    }
    Path shape;
    shape.addContinuousRoundedRect(bounds(), kCornerRadius);
    // Over black, to cut to a shape is to black out what lies outside of it.
    Path outside = shape;
    outside.addRect(bounds());
    context.fillEvenOdd(outside, Color::black);
    context.stroke(shape, Color::white.opacity(0.3), {.lineWidth = 1});
}

void ZoomView::paintPicture(GraphicsContext& context) const {
    context.draw(m_value.image->image, aspectFit(m_value.image->size, bounds()));
}

void ZoomView::paintPlaceholder(GraphicsContext& context) const {
    Path everything;
    everything.addRect(bounds());
    context.fill(everything, Color::black);
    context.drawText({"Waiting for screen capture...", kCaptionFontSize, Color::white.opacity(0.5)},
                     bounds().center(), Anchor::center);
}

} // namespace quillon
