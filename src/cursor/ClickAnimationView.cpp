#include "cursor/ClickAnimationView.h"

#include "cursor/CenteredFrame.h"
#include "platform/Host.h"

namespace quillon {

namespace {

constexpr double kDuration = 0.4;
constexpr CGFloat kEndScale = 1.5;
constexpr double kEndRotation = 360;

constexpr CGFloat kPulseWidth = 3;
constexpr CGFloat kRightClickPulseWidth = 4;

constexpr int kRippleCount = 3;
constexpr CGFloat kRippleWidth = 2;
constexpr double kRippleOpacity = 0.7;
/// Each further circle is so much larger and fainter.
constexpr CGFloat kRippleGrowth = 0.3;
constexpr double kRippleFading = 0.2;

Path circle(CGPoint center, CGFloat diameter) {
    Path path;
    path.addEllipse(centeredFrame(center, diameter));
    return path;
}

} // namespace

double ClickAnimationView::now() {
    return Host::current().mainQueue().now();
}

void ClickAnimationView::startAnimation() {
    const double start = now();
    m_scale.animate(kEndScale, TimingCurve::easeOut, kDuration, start);
    m_opacity.animate(0, TimingCurve::easeOut, kDuration, start);
    if (m_type == ClickAnimationType::ripple) {
        m_rotation.animate(kEndRotation, TimingCurve::linear, kDuration, start);
    }
    m_isAtRest = false;
    setNeedsUpdate();
}

void ClickAnimationView::layout(CGSize size, CGFloat /*scale*/) {
    m_bounds = {0, 0, size.width, size.height};
    m_isAtRest = false;
    setNeedsUpdate();
}

Damage ClickAnimationView::takeDamage() {
    Damage damage;
    if (m_isAtRest) {
        return damage;
    }
    damage.add(m_bounds);
    m_isAtRest = !m_scale.isRunning(now());
    if (!m_isAtRest) {
        m_ticker.request([this] { setNeedsUpdate(); });
    }
    return damage;
}

void ClickAnimationView::paint(GraphicsContext& context, const CGRect& /*rect*/) {
    switch (m_type) {
    case ClickAnimationType::pulse:
        paintPulse(context);
        break;
    case ClickAnimationType::ripple:
        paintRipple(context);
        break;
    case ClickAnimationType::none:
        break;
    }
}

void ClickAnimationView::paintPulse(GraphicsContext& context) const {
    context.setOpacity(opacity());
    context.stroke(circle(m_bounds.center(), m_size * scale()), m_color,
                   {.lineWidth = m_isRightClick ? kRightClickPulseWidth : kPulseWidth});
}

void ClickAnimationView::paintRipple(GraphicsContext& context) const {
    const double seen = opacity();
    for (int index = 0; index < kRippleCount; ++index) {
        // The two opacities multiply, so that a ripple fades faster than a pulse.
        context.setOpacity(seen * (1 - index * kRippleFading));
        context.stroke(circle(m_bounds.center(), m_size * scale() * (1 + index * kRippleGrowth)),
                       m_color.opacity(seen * kRippleOpacity), {.lineWidth = kRippleWidth});
    }
}

} // namespace quillon
