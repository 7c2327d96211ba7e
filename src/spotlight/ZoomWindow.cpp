#include "spotlight/ZoomWindow.h"

#include "model/AppSettings.h"
#include "platform/OverlayStyle.h"
#include "spotlight/ZoomView.h"

#include <memory>

namespace quillon {

ZoomWindow::ZoomWindow(const CGRect& frame, CGFloat magnification)
    : Window(frame, WindowStyleMask::borderless, BackingStoreType::buffered,
             /*defersCreation=*/false)
    , m_magnification(magnification) {
    applyOverlayStyle(*this);
    // The lens alone is solid.
    setOpaque(true);
    setBackgroundColor(Color::black);
    setHasShadow(true);
    setContentView(std::make_shared<HostingView>(std::make_unique<ZoomView>(
        ZoomView::Value{magnification, std::nullopt, AppSettings::shared().showZoomCrosshair})));
}

void ZoomWindow::updateImage(const NSImage& image) {
    m_currentImage = image;
    auto* view = contentView() ? dynamic_cast<ZoomView*>(contentView()->rootView.get()) : nullptr;
    if (view) {
        view->setValue({m_magnification, image, AppSettings::shared().showZoomCrosshair});
    }
}

} // namespace quillon
