#include "spotlight/SpotlightWindow.h"

#include "platform/Host.h"
#include "platform/OverlayStyle.h"
#include "spotlight/SpotlightView.h"

#include <memory>

namespace quillon {

SpotlightWindow::SpotlightWindow(const CGRect& frame)
    : Window(frame, WindowStyleMask::borderless, BackingStoreType::buffered,
             /*defersCreation=*/false) {
    applyOverlayStyle(*this);
    const CGPoint cursor = Host::current().eventMonitors().mouseLocation();
    setContentView(std::make_shared<HostingView>(std::make_unique<SpotlightView>(
        SpotlightView::Value{{cursor.x - frame.minX(), frame.maxY() - cursor.y}, 150, 0.7})));
}

} // namespace quillon
