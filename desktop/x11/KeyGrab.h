#pragma once

#include "desktop/x11/XcbHeaders.h"
#include "platform/HotKeys.h"

#include <cstdint>
#include <vector>

namespace quillon::desktop {

/// A physical key, and the state in which exactly its modifiers are held.
struct KeyCombination {
    xcb_keycode_t keyCode = 0;
    std::uint16_t modifiers = 0;

    friend bool operator==(const KeyCombination&, const KeyCombination&) = default;
};

/// A combination grabbed on a root window in every state of the lock modifiers, and given back at
/// its end.
///
/// 1. The constructor sends one request for each lock state and waits for none.
/// 2. `settle` waits for all the answers at once; it must be called once.
/// 3. When one was refused, the whole grab is to be dropped, which gives back the rest.
class KeyGrab {
public:
    KeyGrab(xcb_connection_t* connection, xcb_window_t root, KeyCombination combination,
            const std::vector<std::uint16_t>& lockStates);
    ~KeyGrab();
    KeyGrab(KeyGrab&& other) noexcept;
    KeyGrab& operator=(KeyGrab&& other) noexcept;

    KeyCombination combination() const { return m_combination; }

    /// Whether this is what a grab of that combination in those lock states would be.
    bool covers(KeyCombination combination, const std::vector<std::uint16_t>& lockStates) const;

    /// `eventHotKeyExistsErr` when another program has the combination in any lock state,
    /// `paramErr` when the server knows no such key.
    OSStatus settle();

private:
    void release();

    xcb_connection_t* m_connection;
    xcb_window_t m_root;
    KeyCombination m_combination;
    std::vector<std::uint16_t> m_lockStates;
    std::vector<xcb_void_cookie_t> m_unsettled;
};

} // namespace quillon::desktop
