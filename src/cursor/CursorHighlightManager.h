#pragma once

#include "cursor/ClickAnimationWindow.h"
#include "cursor/HaloWindow.h"
#include "foundation/Cancellable.h"
#include "foundation/Lifetime.h"
#include "foundation/Published.h"
#include "model/AppSettings.h"
#include "platform/EventMonitors.h"

#include <memory>
#include <optional>
#include <vector>

namespace quillon {

/// Puts a halo round the pointer and plays an animation at a click into the program's own windows.
///
/// - Off: no monitor stands, and the halo is hidden or was never made.
/// - Armed, by `isEnabled`: the monitors stand; the halo is made and not yet shown.
/// - Following, by the first event that goes to another program: each such event moves the halo,
///   and brings it to the front, in a later turn of the main queue.
///
/// What may look odd and is meant so:
/// - The stored looks reach the halo only when a look changes while it is enabled. So after the
///   first enabling it has the look that its window was made with, in a window of `haloSize`, and a
///   change made while it is off is not caught up with.
/// - A new size reaches the view at once and the window with the next event.
/// - A click into another program moves the halo and plays nothing.
/// - The entries of `clickAnimationWindows` go by their timers alone, also when hidden early.
///
/// Global coordinates, in points. Main thread only.
class CursorHighlightManager : public ObservableObject {
public:
    /// The one instance of the installed host. It starts switched off whatever the store holds.
    static CursorHighlightManager& shared();

    Published<bool> isEnabled;
    Published<HaloShape> haloShape;
    Published<Color> haloColor;
    Published<CGFloat> haloSize;
    /// Read at each click.
    Published<ClickAnimationType> clickAnimationType;

    /// Does nothing at all while either monitor stands.
    void startTracking();
    void stopTracking();

    /// Assigns what is given, in the order of the parameters.
    void updateSettings(std::optional<HaloShape> shape = std::nullopt,
                        std::optional<Color> color = std::nullopt,
                        std::optional<CGFloat> size = std::nullopt,
                        std::optional<ClickAnimationType> clickAnimation = std::nullopt);

    /// Plays the animation of a click, if enabled and one is chosen.
    void handleClick(CGPoint location, bool isRightClick);

    int activeClickAnimationCount() const {
        return static_cast<int>(m_clickAnimationWindows.size());
    }

    std::optional<EventMonitorToken> eventMonitor() const { return m_eventMonitor; }
    std::optional<EventMonitorToken> localEventMonitor() const { return m_localEventMonitor; }
    /// Null until the first enabling, and then kept.
    const HaloWindow* haloWindow() const { return m_haloWindow.get(); }
    /// The animations that are showing, the oldest first.
    const std::vector<std::shared_ptr<ClickAnimationWindow>>& clickAnimationWindows() const {
        return m_clickAnimationWindows;
    }
    /// The place of the last event; nothing depends on it.
    CGPoint currentCursorLocation() const { return m_currentCursorLocation; }

private:
    CursorHighlightManager();

    void setupSettingsObserver();
    void isEnabledDidSet(bool isNowEnabled);

    void handleEvent(const NSEvent& event);
    void handleClickEvent(const NSEvent& event);

    void updateHaloPosition(CGPoint location);
    void updateHaloAppearance();
    void hideHalo();

    void showClickAnimation(CGPoint location, bool isRightClick);
    void removeClickAnimationWindow(const ClickAnimationWindow& window);
    void hideClickAnimations();

    std::optional<EventMonitorToken> m_eventMonitor;
    std::optional<EventMonitorToken> m_localEventMonitor;
    std::unique_ptr<HaloWindow> m_haloWindow;
    std::vector<std::shared_ptr<ClickAnimationWindow>> m_clickAnimationWindows;
    CGPoint m_currentCursorLocation;
    std::vector<Cancellable> m_settingsObservers;
    Lifetime m_lifetime;
};

} // namespace quillon
