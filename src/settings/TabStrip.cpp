#include "settings/TabStrip.h"

namespace quillon {

std::string_view icon(SettingsTab tab) {
    switch (tab) {
    case SettingsTab::general:
        return "gear";
    case SettingsTab::annotation:
        return "pencil.and.outline";
    case SettingsTab::cursor:
        return "sparkles";
    case SettingsTab::spotlight:
        return "magnifyingglass";
    case SettingsTab::hotkeys:
        return "keyboard";
    case SettingsTab::about:
        return "info.circle";
    }
    return {};
}

TabStrip TabStrip::of(SettingsTab selected) {
    TabStrip strip;
    for (const SettingsTab tab : allCases<SettingsTab>()) {
        if (!strip.items.empty()) {
            strip.items.emplace_back(TabDivider{});
        }
        strip.items.emplace_back(
            TabButton{tab, std::string(icon(tab)), std::string(rawValue(tab)), tab == selected});
    }
    return strip;
}

} // namespace quillon
