#pragma once

#include "foundation/Cancellable.h"
#include "foundation/Lifetime.h"
#include "platform/Application.h"
#include "platform/StatusBar.h"
#include "shell/OverlayWindow.h"

#include <any>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace quillon {

/// Starts everything in a fixed order, owns the status item and the overlay window, turns
/// notifications into features switched on and off, and shuts down.
///
/// Start:
/// 1. the program takes no place among the desktop's windows;
/// 2. the settings are loaded;
/// 3. the status item comes up;
/// 4. the stored annotation mode takes effect, by the first value of its subscription, one turn
///    later;
/// 5. the shortcuts are registered, then heard, then observed;
/// 6. a change of the bindings is observed;
/// 7. the managers of the other features come into being, switched off;
/// 8. windows that nobody is to see are swept off the screen.
///
/// The overlay window is made when it is first needed. Work that follows a notification or a
/// setting runs in a later turn of the main queue.
class AppDelegate : public ApplicationDelegate {
public:
    AppDelegate() = default;

    void applicationDidFinishLaunching() override;
    void applicationWillTerminate() override;
    bool perform(std::string_view selector) override;

    /// Null until annotation was first wanted.
    OverlayWindow* overlayWindow() { return m_overlayWindow.get(); }
    StatusItem* statusItem() { return m_statusItem.get(); }
    /// Null but while the settings window is open.
    Window* settingsWindow() { return m_settingsWindow.get(); }
    /// Stays empty: no monitor is ever stored here.
    const std::vector<std::any>& eventMonitors() const { return m_eventMonitors; }

    void menuBarButtonClicked();
    void toggleAnnotation();
    /// Wipes the annotations in both directions.
    void toggleWhiteboard();
    void toggleCursorHalo();
    void toggleSpotlight();
    void toggleZoom();
    /// Brings the settings window to the front, or makes it. One that was closed is never reused.
    void openSettings();
    /// Asks whoever shows annotations to clear them.
    void clearAnnotations();

private:
    void setupStatusItem();
    void ensureOverlayWindow();
    void setupOverlayWindow();
    void observeHotkeySettings();
    void observeAnnotationSettings();
    void updateOverlayForScreens();
    void setupHotkeys();
    void sweepWindows();
    void updateStatusItemState();
    /// Runs `work` in a later turn, if this is still there.
    void later(std::function<void()> work);

    std::unique_ptr<OverlayWindow> m_overlayWindow;
    std::unique_ptr<StatusItem> m_statusItem;
    std::unique_ptr<Window> m_settingsWindow;
    std::vector<std::any> m_eventMonitors;
    Cancellable m_annotationSettingsObserver;
    Cancellable m_hotkeySettingsObserver;
    Cancellable m_settingsWindowObserver;
    /// Observers that live as long as this does.
    std::vector<Cancellable> m_observers;
    Lifetime m_lifetime;
};

} // namespace quillon
