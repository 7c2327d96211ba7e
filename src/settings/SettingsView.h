#pragma once

#include "cursor/CursorHighlightManager.h"
#include "foundation/Cancellable.h"
#include "foundation/Published.h"
#include "model/AppSettings.h"
#include "platform/ControlsView.h"
#include "settings/SettingsPage.h"
#include "settings/SettingsTab.h"
#include "settings/TabStrip.h"
#include "shortcuts/HotkeyManager.h"
#include "spotlight/SpotlightManager.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quillon {

/// A button in the tool bar of a window.
struct ToolbarItem {
    std::string label;
    std::string symbol;
    std::string toolTip;
    std::function<void()> action;
};

/// The root of the settings window: a strip of tabs at the top, the page of the selected one below,
/// and a button in the window's tool bar that resets everything.
///
/// Every control edits the store or a manager as it is moved; nothing is kept here, and there is no
/// apply step. `objectWillChange` is sent before anything changes that a page may show: whoever
/// shows it looks again in a later turn, and finds the same page unless the tab is another one.
///
/// A reset is to the page on show as if it came on screen anew: there the store wins over the
/// managers, so that its switches show their defaults too and what they switch goes off; a
/// recording ends. A halo, spotlight or lens whose tab is not on show runs on until it is.
class SettingsView : public ControlsView {
public:
    static constexpr CGSize minimumContentSize{500, 400};
    static constexpr CGFloat contentPadding = 20;

    SettingsView();
    ~SettingsView() override;

    SettingsTab selectedTab() const { return m_selectedTab; }
    /// Makes the page of the tab anew, unless it is the one on show. What was described of the page
    /// before is void from then on.
    void select(SettingsTab tab);

    TabStrip tabStrip() const { return TabStrip::of(m_selectedTab); }
    /// What the selected tab shows, each time as a fresh description of the same page.
    PageContent content() const { return m_page->content(); }
    std::vector<ToolbarItem> toolbar();

    void onDisappear() override;

private:
    std::unique_ptr<SettingsPage> makePage(SettingsTab tab);
    void show(SettingsTab tab);
    void leavePage();
    void resetToDefaults();

    AppSettings& m_appSettings;
    HotkeyManager& m_hotkeyManager;
    CursorHighlightManager& m_cursorHighlightManager;
    SpotlightManager& m_spotlightManager;
    Published<SettingsTab> m_selectedTab{*this, SettingsTab::general};
    std::unique_ptr<SettingsPage> m_page;
    Cancellable m_pageObserver;
    std::vector<Cancellable> m_observers;
};

} // namespace quillon
