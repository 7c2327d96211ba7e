#include "cursor/HaloWindow.h"

#include "cursor/HaloView.h"
#include "platform/OverlayStyle.h"

#include <memory>

namespace quillon {

namespace {

constexpr CGFloat kSize = 40;

} // namespace

HaloWindow::HaloWindow()
    : Window({0, 0, kSize, kSize}, WindowStyleMask::borderless, BackingStoreType::buffered,
             /*defersCreation=*/false) {
    applyOverlayStyle(*this);
    // The manager owns its windows, also closed ones.
    setReleasedWhenClosed(false);
    setContentView(std::make_shared<HostingView>(
        std::make_unique<HaloView>(HaloShape::ring, Color::cyan, kSize)));
}

} // namespace quillon
