#pragma once

#include "foundation/Cancellable.h"
#include "platform/Screens.h"
#include "platform/Window.h"

#include <memory>

namespace quillon {

/// The borderless, transparent window that carries the annotations over the main screen, on every
/// desktop. It either lets the pointer through or catches it; which of the two is decided by its
/// owner.
///
/// It covers one screen, the main one, and follows it when the screens change. It is made once, and
/// lives to the end of the program.
class OverlayWindow : public Window {
public:
    /// Covers the main screen, or nothing at all when there is none.
    OverlayWindow();
    explicit OverlayWindow(const CGRect& contentRect);

    bool canBecomeKeyWindow() const override { return true; }

    /// The host of the root view.
    const std::shared_ptr<HostingView>& hostingView() const { return m_hostingView; }

    /// Catches the pointer when enabled, lets it through otherwise. Nothing else.
    void setAnnotationMode(bool enabled);

    void updateForScreen(const NSScreen& screen);

    /// Announces the present input behaviour and asserts it again. It does not flip it.
    void toggleOverlayVisibility();

    // The commands to the root view travel as notifications.
    void clearAnnotations();
    void undo();
    void redo();

private:
    void setupWindow();
    void setupContentView();
    void screenConfigurationChanged();

    std::shared_ptr<HostingView> m_hostingView;
    Cancellable m_screenObserver;
};

} // namespace quillon
