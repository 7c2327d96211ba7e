#include "settings/GeneralSettingsView.h"

namespace quillon {

PageContent GeneralSettingsView::content() {
    auto& settings = m_appSettings;
    const auto toolName = [](DrawingTool tool) { return std::string(displayName(tool)); };
    return Form{
        "General Settings",
        {
            {"App Behavior",
             {
                 ToggleRow{"Launch at Login", settings.launchAtLogin.binding()},
             }},
            {"Toolbar",
             {
                 ToggleRow{"Show Floating Toolbar", settings.showFloatingToolbar.binding()},
                 PickerRow::of<DrawingTool>("Default Tool", settings.selectedTool.binding(),
                                            toolName, PickerStyle::menu),
             }},
        },
        {},
    };
}

} // namespace quillon
