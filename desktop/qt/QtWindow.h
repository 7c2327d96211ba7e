#pragma once

#include "desktop/qt/ContentWidget.h"
#include "desktop/x11/KeyboardFocus.h"
#include "platform/Window.h"

#include <xcb/xcb.h>

namespace quillon::desktop {

/// A borderless window of the system: translucent, and out of the window manager's hands, so that
/// it stands on every desktop, over full-screen programs, and in no list of windows.
///
/// It lets the pointer through by an empty input region, which is in force before the window first
/// comes on the screen and is switched without unmapping it. The first press in it brings it the
/// keyboard; once it lets the pointer through and no text is being typed, the keyboard goes back.
class QtWindow : public WindowBackend {
public:
    QtWindow(Window& window, xcb_connection_t* connection);
    ~QtWindow() override;

    void setFrame(const CGRect& frame) override;
    void display() override;
    void setIgnoresMouseEvents(bool ignores) override;
    void setContentView(const std::shared_ptr<HostingView>& view) override;
    void orderFrontRegardless() override;
    void makeKeyAndOrderFront() override;
    void orderOut() override;

private:
    /// Looks whether there is a compositor; done whenever the window's input or order changes.
    void followCompositor();
    void grabPointerIfNeeded();
    void confirmGrab();
    void takeOutline(const QRegion& outline);
    void blurBehind(const QRect& place);
    void takeKeyboard();
    void giveBackKeyboardIfUnused();
    xcb_window_t nativeWindow() const { return static_cast<xcb_window_t>(m_widget.winId()); }

    Window& m_window;
    xcb_connection_t* m_connection;
    KeyboardFocus m_keyboard;
    ContentWidget m_widget;
    bool m_grabsPointer = false;
};

} // namespace quillon::desktop
