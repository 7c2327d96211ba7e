#include "desktop/qt/settings/KeyReader.h"

#include "desktop/x11/KeyboardMap.h"
#include "platform/HotKeys.h"

#include <QKeyEvent>

#include <cstdint>
#include <utility>

namespace quillon::desktop {

namespace {

std::uint64_t modifierFlags(std::uint16_t state, const ModifierMap& modifiers) {
    constexpr std::pair<std::uint32_t, std::uint64_t> flags[] = {
        {cmdKey, NSEventModifierFlags::command},
        {shiftKey, NSEventModifierFlags::shift},
        {optionKey, NSEventModifierFlags::option},
        {controlKey, NSEventModifierFlags::control},
    };
    const std::uint32_t held = modifiers.modifiers(state);
    std::uint64_t result = (state & XCB_MOD_MASK_LOCK) != 0 ? NSEventModifierFlags::capsLock : 0;
    for (const auto& [modifier, flag] : flags) {
        result |= (held & modifier) != 0 ? flag : 0;
    }
    return result;
}

} // namespace

std::optional<KeyEvent> readKey(const QKeyEvent& event, const KeyboardMap& keyboard) {
    const auto key = keyboard.keys.virtualKey(static_cast<xcb_keycode_t>(event.nativeScanCode()));
    if (!key) {
        return std::nullopt;
    }
    const auto state = static_cast<std::uint16_t>(event.nativeModifiers());
    return KeyEvent{static_cast<std::uint16_t>(*key), modifierFlags(state, keyboard.modifiers),
                    event.isAutoRepeat()};
}

} // namespace quillon::desktop
