#pragma once

#include "model/ClickAnimationType.h"
#include "platform/Window.h"

namespace quillon {

/// A small transparent window that plays one click animation and is then of no use any more.
class ClickAnimationWindow : public Window {
public:
    /// Stands with its centre at `location`, in global coordinates; `size` is its side in points.
    ClickAnimationWindow(CGPoint location, const Color& color, CGFloat size,
                         ClickAnimationType type, bool isRightClick);

    ClickAnimationType animationType() const { return m_animationType; }
    bool isRightClick() const { return m_isRightClick; }

    void show() { orderFrontRegardless(); }

private:
    ClickAnimationType m_animationType;
    bool m_isRightClick;
};

} // namespace quillon
