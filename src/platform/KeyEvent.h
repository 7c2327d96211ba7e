#pragma once

#include <cstdint>

namespace quillon {

/// Bits of a key event's flags. Everything below bit 16 depends on the device.
namespace NSEventModifierFlags {
inline constexpr std::uint64_t capsLock = 0x10000;
inline constexpr std::uint64_t shift = 0x20000;
inline constexpr std::uint64_t control = 0x40000;
inline constexpr std::uint64_t option = 0x80000;
inline constexpr std::uint64_t command = 0x100000;
inline constexpr std::uint64_t function = 0x800000;
inline constexpr std::uint64_t deviceIndependentMask = 0xFFFF0000;
} // namespace NSEventModifierFlags

/// A key that went down in one of the program's own windows. A modifier key alone is none.
struct KeyEvent {
    /// The virtual key code: the physical place of the key on the ANSI layout.
    std::uint16_t keyCode = 0;
    std::uint64_t modifierFlags = 0;
    /// Whether the key was down before.
    bool isRepeat = false;

    friend bool operator==(const KeyEvent&, const KeyEvent&) = default;
};

} // namespace quillon
