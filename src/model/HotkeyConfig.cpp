#include "model/HotkeyConfig.h"

#include "platform/CarbonModifiers.h"

#include <optional>
#include <utility>

namespace quillon {

namespace {

constexpr std::uint32_t kCommandShift = cmdKey | shiftKey;

/// The default key that an action had in an earlier version.
std::optional<std::uint32_t> oldDefaultKeyCode(HotkeyAction action) {
    switch (action) {
    case HotkeyAction::toggleCursorHalo:
        return 12;
    case HotkeyAction::toggleSpotlight:
        return 26;
    case HotkeyAction::toggleZoom:
        return 15;
    default:
        return std::nullopt;
    }
}

} // namespace

const HotkeyMap& HotkeyConfig::defaults() {
    static const HotkeyMap bindings = [] {
        HotkeyMap map;
        const std::pair<HotkeyAction, std::uint32_t> keys[] = {
            {HotkeyAction::toggleAnnotation, 1}, {HotkeyAction::toggleWhiteboard, 13},
            {HotkeyAction::toggleCursorHalo, 4}, {HotkeyAction::toggleSpotlight, 37},
            {HotkeyAction::toggleZoom, 7},       {HotkeyAction::clearAnnotations, 8},
        };
        for (const auto& [bound, key] : keys) {
            map[bound] = {key, kCommandShift, bound};
        }
        return map;
    }();
    return bindings;
}

std::uint32_t HotkeyConfig::migrateLegacyModifiers(std::uint32_t value) {
    const std::uint32_t translated = carbonModifiers(value);
    return translated == 0 ? value : translated;
}

HotkeyConfig HotkeyConfig::migrateLegacyConfig(const HotkeyConfig& config, HotkeyAction action) {
    HotkeyConfig result{config.keyCode, migrateLegacyModifiers(config.modifiers), action};
    const auto replacement = defaults().find(action);
    if (result.modifiers == kCommandShift && oldDefaultKeyCode(action) == config.keyCode &&
        replacement != defaults().end()) {
        result.keyCode = replacement->second.keyCode;
    }
    return result;
}

} // namespace quillon
