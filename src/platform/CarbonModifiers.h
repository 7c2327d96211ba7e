#pragma once

#include "platform/HotKeys.h"
#include "platform/KeyEvent.h"

#include <cstdint>

namespace quillon {

/// The modifiers among the flags of a key event as the mask of a hot key. Every other flag
/// contributes nothing.
constexpr std::uint32_t carbonModifiers(std::uint64_t flags) {
    struct Modifier {
        std::uint64_t flag;
        std::uint32_t bit;
    };
    constexpr Modifier modifiers[] = {
        {NSEventModifierFlags::command, cmdKey},
        {NSEventModifierFlags::shift, shiftKey},
        {NSEventModifierFlags::option, optionKey},
        {NSEventModifierFlags::control, controlKey},
    };
    std::uint32_t mask = 0;
    for (const auto& [flag, bit] : modifiers) {
        mask |= (flags & flag) != 0 ? bit : 0;
    }
    return mask;
}

} // namespace quillon
