#pragma once

#include "foundation/Cancellable.h"
#include "foundation/Geometry.h"
#include "foundation/Lifetime.h"
#include "foundation/Published.h"
#include "platform/EventMonitors.h"
#include "spotlight/SpotlightWindow.h"

#include <memory>
#include <optional>
#include <vector>

namespace quillon {

/// Dims the desktop but for a clear circle round the pointer.
///
/// A move of the pointer:
/// 1. the one global monitor reports it, and the place of the pointer is read and kept;
/// 2. one turn later the spotlight is shown anew there.
///
/// There is no local monitor and no motion is a drag: over the program's own windows and while a
/// button is held the circle stands still.
///
/// Main thread only.
class SpotlightManager : public ObservableObject {
public:
    static SpotlightManager& shared();

    /// Assigning it, also an unchanged value, shows or hides the spotlight.
    Published<bool> isSpotlightEnabled{
        *this, false, [this](bool enabled) { enabled ? startSpotlight() : stopSpotlight(); }};
    /// The opacity of the dimming. Follows the setting.
    Published<double> spotlightIntensity{*this, 0.7,
                                         [this](double) { updateSpotlightAppearance(); }};
    /// Of the clear circle, in points. Follows the setting.
    Published<CGFloat> spotlightRadius{*this, 150,
                                       [this](CGFloat) { updateSpotlightAppearance(); }};

    void toggleSpotlight();

    /// Null until the spotlight was first switched on. It is then kept, at the size it was made.
    const SpotlightWindow* spotlightWindow() const { return m_spotlightWindow.get(); }
    /// The pointer's last known place, in global coordinates.
    CGPoint currentCursorLocation() const { return m_currentCursorLocation; }

private:
    SpotlightManager();

    void setupSettingsObserver();
    void startSpotlight();
    void stopSpotlight();
    void updateSpotlightAppearance();
    void startCursorTracking();
    void stopCursorTrackingIfNeeded();
    void updateCursorLocation(CGPoint location);

    std::optional<EventMonitorToken> m_eventMonitor;
    std::unique_ptr<SpotlightWindow> m_spotlightWindow;
    CGPoint m_currentCursorLocation;
    std::vector<Cancellable> m_settingsObservers;
    Lifetime m_lifetime;
};

} // namespace quillon
