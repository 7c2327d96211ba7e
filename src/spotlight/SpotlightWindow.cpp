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
    setContentView(std::make_shared<HostingView>(
        std::make_unique<SpotlightView>(SpotlightView::Value{inView(cursor), 150, 0.7})));
}

void SpotlightWindow::update(CGPoint cursor, CGFloat radius, double intensity) {
    auto* view =
        contentView() ? dynamic_cast<SpotlightView*>(contentView()->rootView.get()) : nullptr;
    if (view) {
        view->setValue({inView(cursor), radius, intensity});
    }
}

CGPoint SpotlightWindow::inView(CGPoint place) const {
    return {place.x - frame().minX(), frame().maxY() - place.y};
}

} // namespace quillon
