#pragma once

#include "model/RawRepresentable.h"

namespace quillon {

/// A key of the defaults, known to the settings store alone. Its raw value is the name of the
/// property that it keeps.
enum class SettingsKey {
    isAnnotationEnabled,
    isWhiteboardMode,
    isCursorHaloEnabled,
    isSpotlightEnabled,
    isZoomEnabled,
    selectedTool,
    selectedColor,
    lineWidth,
    quickColors,
    haloShape,
    haloColor,
    haloSize,
    clickAnimationType,
    spotlightIntensity,
    spotlightRadius,
    magnificationFactor,
    zoomWindowSize,
    zoomWindowOffsetX,
    zoomWindowOffsetY,
    showZoomCrosshair,
    autoEraseTimer,
    showFloatingToolbar,
    toolbarPosition,
    hotkeys,
    launchAtLogin,
};

template <>
struct RawValues<SettingsKey> {
    static constexpr RawValue<SettingsKey> table[] = {
        {SettingsKey::isAnnotationEnabled, "isAnnotationEnabled"},
        {SettingsKey::isWhiteboardMode, "isWhiteboardMode"},
        {SettingsKey::isCursorHaloEnabled, "isCursorHaloEnabled"},
        {SettingsKey::isSpotlightEnabled, "isSpotlightEnabled"},
        {SettingsKey::isZoomEnabled, "isZoomEnabled"},
        {SettingsKey::selectedTool, "selectedTool"},
        {SettingsKey::selectedColor, "selectedColor"},
        {SettingsKey::lineWidth, "lineWidth"},
        {SettingsKey::quickColors, "quickColors"},
        {SettingsKey::haloShape, "haloShape"},
        {SettingsKey::haloColor, "haloColor"},
        {SettingsKey::haloSize, "haloSize"},
        {SettingsKey::clickAnimationType, "clickAnimationType"},
        {SettingsKey::spotlightIntensity, "spotlightIntensity"},
        {SettingsKey::spotlightRadius, "spotlightRadius"},
        {SettingsKey::magnificationFactor, "magnificationFactor"},
        {SettingsKey::zoomWindowSize, "zoomWindowSize"},
        {SettingsKey::zoomWindowOffsetX, "zoomWindowOffsetX"},
        {SettingsKey::zoomWindowOffsetY, "zoomWindowOffsetY"},
        {SettingsKey::showZoomCrosshair, "showZoomCrosshair"},
        {SettingsKey::autoEraseTimer, "autoEraseTimer"},
        {SettingsKey::showFloatingToolbar, "showFloatingToolbar"},
        {SettingsKey::toolbarPosition, "toolbarPosition"},
        {SettingsKey::hotkeys, "hotkeys"},
        {SettingsKey::launchAtLogin, "launchAtLogin"},
    };
};

} // namespace quillon
