#include "spotlight/SpotlightManager.h"

#include "model/AppSettings.h"
#include "platform/Host.h"

namespace quillon {

SpotlightManager& SpotlightManager::shared() {
    return Host::current().shared<SpotlightManager>([] {
        const std::shared_ptr<SpotlightManager> manager(new SpotlightManager());
        // A stream under way holds the manager, through its delegate, and may outlive the host.
        return std::shared_ptr<SpotlightManager>(
            manager.get(), [manager](SpotlightManager* instance) { instance->letGo(); });
    });
}

SpotlightManager::SpotlightManager() {
    setupSettingsObserver();
}

void SpotlightManager::letGo() {
    m_settingsObservers.clear();
    m_screenCaptureStream = nullptr;
    m_zoomStreamOutput = nullptr;
    setZoomWindow(nullptr);
    m_spotlightWindow = nullptr;
}

void SpotlightManager::setupSettingsObserver() {
    auto& settings = AppSettings::shared();
    m_settingsObservers.push_back(settings.spotlightIntensity.sink(
        [this](double intensity) { spotlightIntensity = intensity; }));
    m_settingsObservers.push_back(
        settings.spotlightRadius.sink([this](CGFloat radius) { spotlightRadius = radius; }));
    m_settingsObservers.push_back(settings.magnificationFactor.sink(
        [this](MagnificationFactor magnification) { magnificationFactor = magnification; }));
}

void SpotlightManager::updateSettings(const SettingsUpdate& update) {
    const auto assign = [](auto& property, const auto& value) {
        if (value) {
            property = *value;
        }
    };
    auto& settings = AppSettings::shared();
    assign(spotlightIntensity, update.intensity);
    assign(spotlightRadius, update.radius);
    assign(magnificationFactor, update.magnification);
    assign(settings.zoomWindowSize, update.zoomWindowSize);
    assign(settings.zoomWindowOffsetX, update.zoomWindowOffsetX);
    assign(settings.zoomWindowOffsetY, update.zoomWindowOffsetY);
    assign(settings.showZoomCrosshair, update.showZoomCrosshair);
}

// The spotlight.

void SpotlightManager::toggleSpotlight() {
    isSpotlightEnabled = !isSpotlightEnabled;
}

void SpotlightManager::spotlightSwitched() {
    if (isSpotlightEnabled) {
        startSpotlight();
    } else {
        stopSpotlight();
    }
}

void SpotlightManager::startSpotlight() {
    if (!m_spotlightWindow) {
        CGRect everyScreen = CGRect::zero;
        for (const auto& screen : Host::current().screens().screens()) {
            everyScreen = everyScreen.unite(screen.frame);
        }
        m_spotlightWindow = std::make_unique<SpotlightWindow>(everyScreen);
    }
    updateSpotlightAppearance();
    m_spotlightWindow->orderFrontRegardless();
    startCursorTracking();
}

void SpotlightManager::stopSpotlight() {
    if (m_spotlightWindow) {
        m_spotlightWindow->orderOut();
    }
    stopCursorTrackingIfNeeded();
}

void SpotlightManager::updateSpotlightAppearance() {
    if (m_spotlightWindow) {
        m_spotlightWindow->update(m_currentCursorLocation, spotlightRadius, spotlightIntensity);
    }
}

// The pointer.

void SpotlightManager::startCursorTracking() {
    if (m_eventMonitor) {
        return;
    }
    auto& monitors = Host::current().eventMonitors();
    m_eventMonitor = monitors.addGlobalMonitorForEventsMatchingMask(
        NSEventMask::mouseMoved, m_lifetime.guard([this](const NSEvent&) {
            updateCursorLocation(Host::current().eventMonitors().mouseLocation());
        }));
    updateCursorLocation(monitors.mouseLocation());
}

void SpotlightManager::stopCursorTrackingIfNeeded() {
    if (isSpotlightEnabled || isZoomEnabled || !m_eventMonitor) {
        return;
    }
    Host::current().eventMonitors().removeMonitor(*m_eventMonitor);
    m_eventMonitor.reset();
}

void SpotlightManager::updateCursorLocation(CGPoint location) {
    m_currentCursorLocation = location;
    Host::current().mainQueue().async(m_lifetime.guard([this, location] {
        if (isSpotlightEnabled) {
            updateSpotlightAppearance();
        }
        if (isZoomEnabled) {
            updateZoomPosition(location);
        }
    }));
}

} // namespace quillon
