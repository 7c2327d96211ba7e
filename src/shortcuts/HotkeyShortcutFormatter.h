#pragma once

#include "model/HotkeyConfig.h"

#include <cstdint>
#include <string>

namespace quillon {

/// Turns a binding into the text that the user reads, and the flags of a key event into a mask.
class HotkeyShortcutFormatter {
public:
    HotkeyShortcutFormatter() = delete;

    /// The modifiers directly followed by the key, as in "⌘⇧S". The modifiers stand in the order
    /// ⌘⇧⌥⌃; bits of the mask that are none are left out. A key without a name of its own shows as
    /// "Key(122)".
    static std::string label(const HotkeyConfig& config);

    /// The mask of the modifiers among the flags of a key event. Caps lock, the function key and
    /// whatever depends on the device contribute nothing.
    static std::uint32_t carbonModifiers(std::uint64_t flags);

private:
    static std::string modifierLabel(std::uint32_t mask);
    static std::string keyCodeLabel(std::uint32_t code);
};

} // namespace quillon
