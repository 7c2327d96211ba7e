#pragma once

#include "model/RawRepresentable.h"

namespace quillon {

/// What a global shortcut does.
enum class HotkeyAction {
    toggleAnnotation,
    toggleWhiteboard,
    toggleCursorHalo,
    toggleSpotlight,
    toggleZoom,
    clearAnnotations,
    undo,
    redo
};

template <>
struct RawValues<HotkeyAction> {
    static constexpr RawValue<HotkeyAction> table[] = {
        {HotkeyAction::toggleAnnotation, "toggleAnnotation"},
        {HotkeyAction::toggleWhiteboard, "toggleWhiteboard"},
        {HotkeyAction::toggleCursorHalo, "toggleCursorHalo"},
        {HotkeyAction::toggleSpotlight, "toggleSpotlight"},
        {HotkeyAction::toggleZoom, "toggleZoom"},
        {HotkeyAction::clearAnnotations, "clearAnnotations"},
        {HotkeyAction::undo, "undo"},
        {HotkeyAction::redo, "redo"},
    };
};

std::string_view displayName(HotkeyAction action);

} // namespace quillon
