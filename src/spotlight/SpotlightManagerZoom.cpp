// The lens: its switch, its window, and its place beside the pointer.
#include "model/AppSettings.h"
#include "platform/Host.h"
#include "spotlight/SpotlightManager.h"
#include "spotlight/ZoomGeometry.h"

#include <utility>

namespace quillon {

void SpotlightManager::toggleZoom() {
    isZoomEnabled = !isZoomEnabled;
}

void SpotlightManager::zoomSwitched() {
    m_isZoomEnabledNonisolated = isZoomEnabled;
    increment(m_zoomGeneration);
    if (isZoomEnabled) {
        startZoom(m_zoomGeneration);
    } else {
        stopZoom();
    }
}

void SpotlightManager::stopZoom() {
    if (m_zoomWindow) {
        m_zoomWindow->orderOut();
    }
    stopScreenCapture();
    stopCursorTrackingIfNeeded();
}

void SpotlightManager::magnificationChanged() {
    updateZoomAppearance();
    m_magnificationFactorNonisolated = magnificationFactor;
}

void SpotlightManager::updateZoomAppearance() {
    if (m_zoomWindow) {
        m_zoomWindow->setMagnification(factor(magnificationFactor));
    }
}

void SpotlightManager::setZoomWindow(std::unique_ptr<ZoomWindow> window) {
    m_zoomWindow = std::move(window);
    m_zoomWindowRef = m_zoomWindow.get();
}

void SpotlightManager::updateZoomPosition(CGPoint cursor) {
    if (!m_zoomWindow) {
        return;
    }
    const auto& settings = AppSettings::shared();
    // The screen of the lens holds it, also when the pointer has gone to another one.
    const auto visibleFrame =
        m_currentScreen ? std::optional(m_currentScreen->visibleFrame) : std::nullopt;
    const CGRect frame =
        zoomLensFrame(cursor, m_zoomWindow->frame().width,
                      {settings.zoomWindowOffsetX, settings.zoomWindowOffsetY}, visibleFrame);
    // Displayed anew also where it is pinned: the screen changes, and a frame with the pointer's
    // new surroundings comes.
    m_zoomWindow->setFrame(frame, /*display=*/true, /*animate=*/false);
}

} // namespace quillon
