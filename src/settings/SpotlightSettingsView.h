#pragma once

#include "foundation/Cancellable.h"
#include "model/AppSettings.h"
#include "settings/SettingsPage.h"
#include "spotlight/SpotlightManager.h"

namespace quillon {

/// The tab "Spotlight & Zoom".
///
/// When it comes on screen the store wins: the manager's two switches are given what the store
/// holds. From then on the manager's switches lead, whoever turns them, and the store follows them
/// until the page goes. The other controls edit the store, which the manager hears.
class SpotlightSettingsView : public SettingsPage {
public:
    SpotlightSettingsView(AppSettings& appSettings, SpotlightManager& spotlightManager)
        : m_appSettings(appSettings)
        , m_spotlightManager(spotlightManager) {}

    PageContent content() override;
    void onAppear() override;
    void onDisappear() override;

private:
    FormSection spotlight();
    FormSection zoomLens();

    AppSettings& m_appSettings;
    SpotlightManager& m_spotlightManager;
    Cancellable m_spotlightObserver;
    Cancellable m_zoomObserver;
};

} // namespace quillon
