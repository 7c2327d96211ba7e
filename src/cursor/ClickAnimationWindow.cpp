#include "cursor/ClickAnimationWindow.h"

#include "cursor/ClickAnimationView.h"
#include "platform/OverlayStyle.h"

#include <memory>

namespace quillon {

ClickAnimationWindow::ClickAnimationWindow(CGPoint location, const Color& color, CGFloat size,
                                           ClickAnimationType type, bool isRightClick)
    : Window({location.x - size / 2, location.y - size / 2, size, size},
             WindowStyleMask::borderless, BackingStoreType::buffered, /*defersCreation=*/false)
    , m_animationType(type)
    , m_isRightClick(isRightClick) {
    applyOverlayStyle(*this);
    // The manager owns its windows, also closed ones.
    setReleasedWhenClosed(false);
    setContentView(std::make_shared<HostingView>(
        std::make_unique<ClickAnimationView>(color, size, type, isRightClick)));
}

} // namespace quillon
