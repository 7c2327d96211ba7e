#pragma once

#include "foundation/Cancellable.h"
#include "foundation/Geometry.h"
#include "foundation/Int.h"
#include "foundation/Lifetime.h"
#include "foundation/Published.h"
#include "model/MagnificationFactor.h"
#include "platform/EventMonitors.h"
#include "platform/SCStream.h"
#include "platform/ScreenCapture.h"
#include "platform/Screens.h"
#include "spotlight/SpotlightWindow.h"
#include "spotlight/ZoomWindow.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quillon {

class ZoomStreamOutput;

/// Dims the desktop but for a clear circle round the pointer, and shows the screen under the
/// pointer magnified in a lens beside it. Main thread only.
///
/// A move of the pointer:
/// 1. the one global monitor, which runs while either of the two is on, reports it, and the place
///    of the pointer is read and kept;
/// 2. one turn later the spotlight is shown anew there, and the lens goes along.
/// There is no local monitor and no motion is a drag: over the program's own windows and while a
/// button is held both stand still.
///
/// From the lens's switch to its picture. `~~>` is a suspension: until the step goes on, the user
/// may have switched the lens off, or off and on. So each assignment of the switch takes a new
/// generation, the chain that it starts carries it along, and every step that goes on asks first
/// whether it is still wanted:
///
///     startZoom ~~ probe ~~> [wanted?] refused: the desktop is asked to allow capturing
///                                      granted: setupScreenCapture
///     setupScreenCapture ~~ content ~~> [wanted?] choose the display: setupStream
///     setupStream [wanted?] ~~ start ~~> [wanted?] running: the stream is kept
///                                        stale: ~~ stop ~~> nothing
///
/// A stream that the system stops goes back to setupScreenCapture within its generation. A failure
/// prints its line; if it is still of concern it may lead to asking for the permission.
class SpotlightManager : public ObservableObject,
                         public std::enable_shared_from_this<SpotlightManager> {
public:
    static SpotlightManager& shared();

    /// Assigning it, also an unchanged value, shows or hides the spotlight.
    Published<bool> isSpotlightEnabled{*this, false, [this](bool) { spotlightSwitched(); }};
    /// Assigning it, also an unchanged value, starts the lens anew or stops it.
    Published<bool> isZoomEnabled{*this, false, [this](bool) { zoomSwitched(); }};
    /// The opacity of the dimming. Follows the setting.
    Published<double> spotlightIntensity{*this, 0.7,
                                         [this](double) { updateSpotlightAppearance(); }};
    /// Of the clear circle, in points. Follows the setting.
    Published<CGFloat> spotlightRadius{*this, 150,
                                       [this](CGFloat) { updateSpotlightAppearance(); }};
    /// Follows the setting; taken up with the next frame.
    Published<MagnificationFactor> magnificationFactor{
        *this, MagnificationFactor::x2, [this](MagnificationFactor) { magnificationChanged(); }};

    void toggleSpotlight();
    void toggleZoom();

    struct SettingsUpdate {
        std::optional<double> intensity{};
        std::optional<CGFloat> radius{};
        std::optional<MagnificationFactor> magnification{};
        std::optional<CGFloat> zoomWindowSize{};
        std::optional<CGFloat> zoomWindowOffsetX{};
        std::optional<CGFloat> zoomWindowOffsetY{};
        std::optional<bool> showZoomCrosshair{};
    };
    /// Writes what is given, in this order: the first three here, the others to the settings.
    void updateSettings(const SettingsUpdate& update);

    /// Null until the spotlight was first switched on. It is then kept, at the size it was made.
    const SpotlightWindow* spotlightWindow() const { return m_spotlightWindow.get(); }
    /// Null until the lens was first switched on. It is then kept, at the size it was made, and
    /// with its last picture.
    ZoomWindow* zoomWindow() const { return m_zoomWindow.get(); }
    /// The pointer's last known place, in global coordinates.
    CGPoint currentCursorLocation() const { return m_currentCursorLocation; }
    /// The screen that was the main one when the lens was last switched on.
    const std::optional<NSScreen>& currentScreen() const { return m_currentScreen; }
    /// Goes up by one with every assignment of `isZoomEnabled`.
    Int zoomGeneration() const { return m_zoomGeneration; }
    /// Null unless it runs and is wanted.
    const std::shared_ptr<SCStream>& screenCaptureStream() const { return m_screenCaptureStream; }
    const std::shared_ptr<ZoomStreamOutput>& zoomStreamOutput() const { return m_zoomStreamOutput; }

    // Kept up to date, and read by nobody.
    bool isScreenCapturePermissionGranted() const { return m_isScreenCapturePermissionGranted; }
    MagnificationFactor magnificationFactorNonisolated() const {
        return m_magnificationFactorNonisolated;
    }
    const ZoomWindow* zoomWindowRef() const { return m_zoomWindowRef; }
    bool isZoomEnabledNonisolated() const { return m_isZoomEnabledNonisolated; }

private:
    friend class StreamDelegate;

    SpotlightManager();
    /// Drops what needs the host, whoever still holds the manager itself.
    void letGo();
    void setupSettingsObserver();

    void spotlightSwitched();
    void startSpotlight();
    void stopSpotlight();
    void updateSpotlightAppearance();

    void startCursorTracking();
    void stopCursorTrackingIfNeeded();
    void updateCursorLocation(CGPoint location);

    void zoomSwitched();
    void startZoom(Int generation);
    void stopZoom();
    void magnificationChanged();
    void updateZoomAppearance();
    void updateZoomPosition(CGPoint cursor);
    void setZoomWindow(std::unique_ptr<ZoomWindow> window);

    /// Whether a chain of that generation is what the user wants now.
    bool isWanted(Int generation) const;
    void checkScreenRecordingPermission(std::function<void(bool)> completion);
    void requestScreenRecordingPermission();
    void setupScreenCapture(const NSScreen& screen, Int generation);
    void chooseDisplay(const SCShareableContent& content, const NSScreen& screen, Int generation);
    std::optional<CGDirectDisplayID> getDisplayID(const NSScreen& screen) const;
    void setupStream(const SCDisplay& display, const NSScreen& screen, Int generation);
    void streamStarted(const std::shared_ptr<SCStream>& stream, Int generation);
    void streamFailed(const CaptureError& error, Int generation);
    void streamStoppedBySystem(Int generation);
    void handleScreenCaptureError(const CaptureError& error);
    void stopScreenCapture();

    std::optional<EventMonitorToken> m_eventMonitor;
    std::unique_ptr<SpotlightWindow> m_spotlightWindow;
    std::unique_ptr<ZoomWindow> m_zoomWindow;
    CGPoint m_currentCursorLocation;
    std::vector<Cancellable> m_settingsObservers;
    std::shared_ptr<SCStream> m_screenCaptureStream;
    Int m_zoomGeneration = 0;
    std::optional<NSScreen> m_currentScreen;
    MagnificationFactor m_magnificationFactorNonisolated = MagnificationFactor::x2;
    ZoomWindow* m_zoomWindowRef = nullptr;
    bool m_isZoomEnabledNonisolated = false;
    bool m_isScreenCapturePermissionGranted = false;
    std::shared_ptr<ZoomStreamOutput> m_zoomStreamOutput;
    Lifetime m_lifetime;
};

} // namespace quillon
