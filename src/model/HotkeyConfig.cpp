#include "model/HotkeyConfig.h"

#include <optional>
#include <utility>

namespace quillon {

namespace {

constexpr std::uint32_t kCommandShift = 768;

/// Legacy bit and present bit.
constexpr std::pair<std::uint32_t, std::uint32_t> kLegacyModifiers[] = {
    {0x100000, 0x100},
    {0x20000, 0x200},
    {0x80000, 0x800},
    {0x40000, 0x1000},
};
constexpr std::uint32_t kLegacyMask = 0x1E0000;

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
    if ((value & kLegacyMask) == 0) {
        return value;
    }
    std::uint32_t result = 0;
    for (const auto& [legacy, present] : kLegacyModifiers) {
        result |= (value & legacy) != 0 ? present : 0;
    }
    return result;
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
