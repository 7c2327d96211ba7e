#pragma once

#include "settings/SettingsPage.h"

namespace quillon {

/// The tab "About": a page that never changes.
class AboutSettingsView : public SettingsPage {
public:
    PageContent content() override;
};

} // namespace quillon
