#include "cursor/HaloWindow.h"

#include "cursor/CursorWindow.h"
#include "cursor/HaloView.h"

#include <memory>

namespace quillon {

namespace {

constexpr CGFloat kSize = 40;

} // namespace

HaloWindow::HaloWindow()
    : Window({0, 0, kSize, kSize}, WindowStyleMask::borderless, BackingStoreType::buffered,
             /*defersCreation=*/false) {
    makeCursorWindow(*this);
    setContentView(std::make_shared<HostingView>(
        std::make_unique<HaloView>(HaloShape::ring, Color::cyan, kSize)));
}

} // namespace quillon
