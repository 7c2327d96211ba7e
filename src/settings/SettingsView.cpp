#include "settings/SettingsView.h"

#include "settings/AboutSettingsView.h"
#include "settings/AnnotationSettingsView.h"
#include "settings/CursorSettingsView.h"
#include "settings/GeneralSettingsView.h"
#include "settings/HotkeySettingsView.h"
#include "settings/SpotlightSettingsView.h"

#include <initializer_list>

namespace quillon {

SettingsView::SettingsView()
    : m_appSettings(AppSettings::shared())
    , m_hotkeyManager(HotkeyManager::shared())
    , m_cursorHighlightManager(CursorHighlightManager::shared())
    , m_spotlightManager(SpotlightManager::shared()) {
    for (ObservableObject* const observed : std::initializer_list<ObservableObject*>{
             &m_appSettings, &m_hotkeyManager, &m_cursorHighlightManager, &m_spotlightManager}) {
        m_observers.push_back(observed->objectWillChange.sink([this] { objectWillChange.send(); }));
    }
    show(m_selectedTab);
}

SettingsView::~SettingsView() = default;

void SettingsView::select(SettingsTab tab) {
    if (tab == m_selectedTab) {
        return;
    }
    leavePage();
    m_selectedTab = tab;
    show(tab);
}

std::vector<ToolbarItem> SettingsView::toolbar() {
    return {{"Reset", "arrow.counterclockwise", "Reset all settings to defaults",
             [this] { resetToDefaults(); }}};
}

void SettingsView::onDisappear() {
    leavePage();
}

std::unique_ptr<SettingsPage> SettingsView::makePage(SettingsTab tab) {
    switch (tab) {
    case SettingsTab::general:
        return std::make_unique<GeneralSettingsView>(m_appSettings);
    case SettingsTab::annotation:
        return std::make_unique<AnnotationSettingsView>(m_appSettings);
    case SettingsTab::hotkeys:
        return std::make_unique<HotkeySettingsView>(m_appSettings, m_hotkeyManager);
    case SettingsTab::cursor:
        return std::make_unique<CursorSettingsView>(m_appSettings, m_cursorHighlightManager);
    case SettingsTab::spotlight:
        return std::make_unique<SpotlightSettingsView>(m_appSettings, m_spotlightManager);
    case SettingsTab::about:
        break;
    }
    return std::make_unique<AboutSettingsView>();
}

void SettingsView::show(SettingsTab tab) {
    m_page = makePage(tab);
    m_pageObserver = m_page->objectWillChange.sink([this] { objectWillChange.send(); });
    m_page->onAppear();
}

void SettingsView::leavePage() {
    m_page->onDisappear();
}

void SettingsView::resetToDefaults() {
    leavePage();
    m_appSettings.resetToDefaults();
    m_page->onAppear();
}

} // namespace quillon
