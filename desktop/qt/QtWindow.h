#pragma once

#include "desktop/qt/ContentWidget.h"
#include "desktop/qt/PopupWatch.h"
#include "desktop/qt/WindowPlacement.h"
#include "desktop/x11/CompositorWatch.h"
#include "desktop/x11/KeyboardFocus.h"
#include "desktop/x11/Panels.h"
#include "foundation/Cancellable.h"
#include "platform/Window.h"
#include "platform/WindowBackend.h"

#include <QRect>
#include <QRegion>

#include <xcb/xcb.h>

#include <optional>
#include <set>

namespace quillon::desktop {

/// A borderless window of the system: translucent, and out of the window manager's hands, so that
/// it stands on every desktop, over full-screen programs, and in no list of windows.
///
/// It lets the pointer through by an empty input region, which is in force before the window first
/// comes on the screen and is switched without unmapping it. Where it takes the pointer, the panels
/// of the desktop stay in reach: the menu of the status item is there at any moment. The first
/// press in it brings it the keyboard; once it lets the pointer through and no text is being typed,
/// the keyboard goes back.
class QtWindow : public WindowBackend {
public:
    /// What the windows of the program share.
    struct Surroundings {
        xcb_connection_t* connection;
        CompositorWatch& compositor;
        Panels& panels;
        /// How many windows hold the pointer as a whole.
        int& pointerHolders;
        /// Those there are.
        std::set<const QtWindow*>& all;
    };

    QtWindow(Window& window, const Surroundings& surroundings);
    ~QtWindow() override;

    void setFrame(const CGRect& frame) override;
    void display() override;
    void setIgnoresMouseEvents(bool ignores) override;
    void setContentView(const std::shared_ptr<HostingView>& view) override;
    void orderFrontRegardless() override;
    void makeKeyAndOrderFront() override;
    void orderOut() override;

    /// Whether it stands on the screen and hides all there is below a rectangle of the root window,
    /// in device pixels.
    bool hides(const xcb_rectangle_t& rect) const;

private:
    /// A window that takes the pointer would bar the way to the titled one, and stays below it.
    std::optional<xcb_window_t> ceiling() const;
    /// Called whenever it may have come above it.
    void stayBelowTitledWindow();
    void followCompositor();
    void grabPointerIfNeeded();
    void confirmGrab();
    /// False while somebody else holds the pointer.
    bool grabPointer();
    void noteGrab(bool grabs);
    /// Says where the window takes the pointer.
    void followInputRegion();
    /// Asks where the panels are.
    void followPanels();
    void followPanelsLater();
    void followControls(const QRect& place);
    void takeOutline(const QRegion& outline);
    void blurBehind(const QRect& place);
    void takeKeyboard();
    void giveBackKeyboardIfUnused();
    xcb_window_t nativeWindow() const { return static_cast<xcb_window_t>(m_widget.winId()); }

    Window& m_window;
    Surroundings m_surroundings;
    KeyboardFocus m_keyboard;
    ContentWidget m_widget;
    WindowPlacement m_placement;
    bool m_grabsPointer = false;
    std::optional<PopupWatch> m_popups;
    /// In device pixels of the root window; empty while the window lets the pointer through.
    QRegion m_panels;
    /// In device pixels of the window; empty when there are none.
    QRect m_controlsPlace;
    Cancellable m_compositorChange;
    Cancellable m_panelsChange;
};

} // namespace quillon::desktop
