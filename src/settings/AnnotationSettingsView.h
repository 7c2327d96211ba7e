#pragma once

#include "model/AppSettings.h"
#include "settings/SettingsPage.h"

namespace quillon {

/// The tab "Annotation".
class AnnotationSettingsView : public SettingsPage {
public:
    explicit AnnotationSettingsView(AppSettings& appSettings)
        : m_appSettings(appSettings) {}

    PageContent content() override;

private:
    AppSettings& m_appSettings;
};

} // namespace quillon
