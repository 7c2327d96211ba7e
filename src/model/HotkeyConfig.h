#pragma once

#include "model/HotkeyAction.h"

#include <cstdint>
#include <map>

namespace quillon {

struct HotkeyConfig;
using HotkeyMap = std::map<HotkeyAction, HotkeyConfig>;

/// The binding of a global shortcut.
struct HotkeyConfig {
    /// The physical place of a key, in the numbering of the ANSI layout.
    std::uint32_t keyCode = 0;
    /// Command 0x100, shift 0x200, option 0x800, control 0x1000, combined by OR.
    std::uint32_t modifiers = 0;
    HotkeyAction action = HotkeyAction::toggleAnnotation;

    /// Six bindings; undo and redo have none.
    static const HotkeyMap& defaults();

    /// Turns a mask of the event-flag bits that an earlier version stored into the present form. A
    /// mask without such bits is returned as it is; in a mixed one only these bits count.
    static std::uint32_t migrateLegacyModifiers(std::uint32_t value);

    /// Brings a stored binding into its present form: modifiers as above, and an old default key of
    /// the halo, the spotlight or the lens moved to the new one.
    static HotkeyConfig migrateLegacyConfig(const HotkeyConfig& config, HotkeyAction action);

    friend bool operator==(const HotkeyConfig&, const HotkeyConfig&) = default;
};

} // namespace quillon
