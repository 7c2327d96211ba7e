#pragma once

#include "model/RawRepresentable.h"

namespace quillon {

/// A tab of the settings window. Its raw value is its label too.
enum class SettingsTab { general, annotation, cursor, spotlight, hotkeys, about };

template <>
struct RawValues<SettingsTab> {
    static constexpr RawValue<SettingsTab> table[] = {
        {SettingsTab::general, "General"},    {SettingsTab::annotation, "Annotation"},
        {SettingsTab::cursor, "Cursor Halo"}, {SettingsTab::spotlight, "Spotlight & Zoom"},
        {SettingsTab::hotkeys, "Shortcuts"},  {SettingsTab::about, "About"},
    };
};

/// The name of the symbol glyph that stands for the tab.
std::string_view icon(SettingsTab tab);

} // namespace quillon
