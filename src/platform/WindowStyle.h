#pragma once

#include <cstdint>

namespace quillon {

/// Bits that say what stands around a window's content. A window with any of them is in the window
/// manager's hands; one without any is not.
enum class WindowStyleMask : std::uint32_t {
    borderless = 0,
    titled = 1,
    closable = 2,
    miniaturizable = 4,
    resizable = 8,
};

constexpr WindowStyleMask operator|(WindowStyleMask a, WindowStyleMask b) {
    return static_cast<WindowStyleMask>(static_cast<std::uint32_t>(a) |
                                        static_cast<std::uint32_t>(b));
}
constexpr bool contains(WindowStyleMask mask, WindowStyleMask bit) {
    return (static_cast<std::uint32_t>(mask) & static_cast<std::uint32_t>(bit)) != 0;
}

enum class BackingStoreType { buffered = 2 };

/// The level of every window of the system.
inline constexpr int NSFloatingWindowLevel = 3;

/// Bits of a collection behaviour.
namespace NSWindowCollectionBehavior {
inline constexpr std::uint32_t canJoinAllSpaces = 0x1;
inline constexpr std::uint32_t ignoresCycle = 0x40;
inline constexpr std::uint32_t fullScreenAuxiliary = 0x100;
} // namespace NSWindowCollectionBehavior

/// Bits of an autoresizing mask.
namespace NSAutoresizingMask {
inline constexpr std::uint32_t widthSizable = 0x2;
inline constexpr std::uint32_t heightSizable = 0x10;
} // namespace NSAutoresizingMask

} // namespace quillon
