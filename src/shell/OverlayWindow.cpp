#include "shell/OverlayWindow.h"

#include "annotation/AnnotationCanvas.h"
#include "model/AppSettings.h"
#include "model/NotificationNames.h"
#include "platform/Host.h"
#include "platform/OverlayStyle.h"

#include <string>

namespace quillon {

namespace {

CGRect mainScreenFrame() {
    const auto screen = Host::current().screens().mainScreen();
    return screen ? screen->frame : CGRect::zero;
}

void post(std::string_view name, NotificationUserInfo userInfo = {}) {
    Host::current().notificationCenter().post(name, nullptr, std::move(userInfo));
}

} // namespace

OverlayWindow::OverlayWindow()
    : OverlayWindow(mainScreenFrame()) {}

OverlayWindow::OverlayWindow(const CGRect& contentRect)
    : Window(contentRect, WindowStyleMask::borderless, BackingStoreType::buffered,
             /*defersCreation=*/false) {
    setupWindow();
    setupContentView();
}

void OverlayWindow::setupWindow() {
    setIdentifier(std::string(overlayWindowIdentifier));
    applyOverlayStyle(*this);
    setReleasedWhenClosed(false);
    m_screenObserver = Host::current().notificationCenter().addObserver(
        NSApplicationDidChangeScreenParametersNotification,
        [this](const Notification&) { screenConfigurationChanged(); });
}

void OverlayWindow::setupContentView() {
    m_hostingView = std::make_shared<HostingView>(
        std::make_unique<OverlayContainerView>(AppSettings::shared()));
    m_hostingView->frame = contentView() ? contentView()->frame : contentBounds();
    m_hostingView->autoresizingMask =
        NSAutoresizingMask::widthSizable | NSAutoresizingMask::heightSizable;
    setContentView(m_hostingView);
}

void OverlayWindow::screenConfigurationChanged() {
    if (const auto screen = Host::current().screens().mainScreen()) {
        updateForScreen(*screen);
    }
}

void OverlayWindow::setAnnotationMode(bool enabled) {
    setIgnoresMouseEvents(!enabled);
}

void OverlayWindow::updateForScreen(const NSScreen& screen) {
    setFrame(screen.frame, /*display=*/true, /*animate=*/false);
}

void OverlayWindow::toggleOverlayVisibility() {
    const bool enabled = !ignoresMouseEvents();
    setAnnotationMode(enabled);
    post(NotificationName::annotationModeChanged, {{"isEnabled", enabled}});
}

void OverlayWindow::clearAnnotations() {
    if (m_hostingView) {
        post(NotificationName::clearAnnotations);
    }
}

void OverlayWindow::undo() {
    post(NotificationName::undoAnnotation);
}

void OverlayWindow::redo() {
    post(NotificationName::redoAnnotation);
}

} // namespace quillon
