#pragma once

#include "foundation/AnimatedValue.h"
#include "model/ClickAnimationType.h"
#include "platform/ContentView.h"
#include "platform/FrameTicker.h"

namespace quillon {

/// Circles that grow from a click and fade. It starts when it appears, plays once, and then shows
/// nothing.
///
/// Its state, and what it is seen at on its way:
/// - `scale`, of the circles, eases out from 0.1 to 1.5;
/// - `opacity` eases out from 1 to 0;
/// - `rotation` runs from 0 to 360, of a ripple alone, and turns nothing.
class ClickAnimationView : public ContentView {
public:
    /// `size` is the diameter of a circle at scale 1, in points. A right click draws the pulse with
    /// a wider line, and is otherwise like a left one.
    ClickAnimationView(const Color& color, CGFloat size, ClickAnimationType type, bool isRightClick)
        : m_color(color)
        , m_size(size)
        , m_type(type)
        , m_isRightClick(isRightClick) {}

    const Color& color() const { return m_color; }
    CGFloat size() const { return m_size; }
    ClickAnimationType type() const { return m_type; }
    bool isRightClick() const { return m_isRightClick; }

    CGFloat scale() const { return m_scale.at(now()); }
    double opacity() const { return m_opacity.at(now()); }
    double rotation() const { return m_rotation.at(now()); }

    /// The view's own frame is twice as wide and high as `size`, in the middle of the window.
    CGSize frameSize() const { return {2 * m_size, 2 * m_size}; }

    void onAppear() override { startAnimation(); }
    CGFloat overflow() const override { return (frameSize().width - m_size) / 2; }
    void layout(CGSize size, CGFloat scale) override;
    Damage takeDamage() override;
    void paint(GraphicsContext& context, const CGRect& rect) override;

private:
    static double now();
    void startAnimation();
    void paintPulse(GraphicsContext& context) const;
    void paintRipple(GraphicsContext& context) const;

    Color m_color;
    CGFloat m_size;
    ClickAnimationType m_type;
    bool m_isRightClick;

    AnimatedValue m_scale{0.1};
    AnimatedValue m_opacity{1.0};
    AnimatedValue m_rotation{0.0};

    CGRect m_bounds;
    /// The picture on the screen is the one that stays.
    bool m_isAtRest = false;
    FrameTicker m_ticker;
};

} // namespace quillon
