#pragma once

#include "cursor/CursorHighlightManager.h"
#include "foundation/Cancellable.h"
#include "model/AppSettings.h"
#include "settings/SettingsPage.h"

namespace quillon {

/// The tab "Cursor Halo".
///
/// When it comes on screen the store wins: the manager is given what the store holds. From then on
/// the manager's switch leads, whoever turns it, and the store follows it until the page goes. The
/// other controls edit the store, which the manager hears.
class CursorSettingsView : public SettingsPage {
public:
    CursorSettingsView(AppSettings& appSettings, CursorHighlightManager& cursorHighlightManager)
        : m_appSettings(appSettings)
        , m_cursorHighlightManager(cursorHighlightManager) {}

    PageContent content() override;
    void onAppear() override;
    void onDisappear() override;

private:
    AppSettings& m_appSettings;
    CursorHighlightManager& m_cursorHighlightManager;
    Cancellable m_enabledObserver;
};

} // namespace quillon
