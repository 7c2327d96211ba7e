#include "desktop/x11/KeyTable.h"

#include "desktop/x11/VirtualKey.h"

namespace quillon::desktop {

KeyTable::KeyTable(const Names& names) {
    for (const VirtualKey& key : virtualKeys()) {
        for (const std::string_view name : key.names) {
            const auto found = names.find(name);
            if (found != names.end()) {
                add(key.code, found->second);
                break;
            }
        }
    }
}

KeyTable KeyTable::evdev() {
    KeyTable table;
    for (const VirtualKey& key : virtualKeys()) {
        table.add(key.code, key.evdevKeyCode);
    }
    return table;
}

std::optional<xcb_keycode_t> KeyTable::keyCode(std::uint32_t virtualKey) const {
    const auto found = m_keyCodes.find(virtualKey);
    return found == m_keyCodes.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::uint32_t> KeyTable::virtualKey(xcb_keycode_t keyCode) const {
    const auto found = m_virtualKeys.find(keyCode);
    return found == m_virtualKeys.end() ? std::nullopt : std::optional(found->second);
}

void KeyTable::add(std::uint32_t virtualKey, xcb_keycode_t keyCode) {
    if (m_virtualKeys.emplace(keyCode, virtualKey).second) {
        m_keyCodes.emplace(virtualKey, keyCode);
    }
}

} // namespace quillon::desktop
