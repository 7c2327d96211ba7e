#pragma once

#include "model/AppSettings.h"
#include "settings/SettingsPage.h"

namespace quillon {

/// The tab "General".
class GeneralSettingsView : public SettingsPage {
public:
    explicit GeneralSettingsView(AppSettings& appSettings)
        : m_appSettings(appSettings) {}

    PageContent content() override;

private:
    AppSettings& m_appSettings;
};

} // namespace quillon
