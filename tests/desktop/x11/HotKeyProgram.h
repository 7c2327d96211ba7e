#pragma once

#include "desktop/x11/Client.h"
#include "desktop/x11/ServerAlone.h"
#include "desktop/x11/TestKeyboard.h"
#include "desktop/x11/X11HotKeys.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace quillon::test {

inline constexpr std::uint32_t commandShift = cmdKey | shiftKey;
/// The real modifiers of command and shift on the keyboard that the server starts with.
inline constexpr unsigned superShift = XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT;
inline constexpr EventTypeSpec hotKeyPressed{kEventClassKeyboard, kEventHotKeyPressed};

namespace virtualKey {
inline constexpr std::uint32_t s = 1;
inline constexpr std::uint32_t h = 4;
inline constexpr std::uint32_t home = 115;
/// No key has this code.
inline constexpr std::uint32_t none = 52;
} // namespace virtualKey

using Ids = std::vector<std::uint32_t>;

/// A program with hot keys, which notes the ids of those that were pressed. An error that reaches
/// its event loop fails the test.
class HotKeyProgram {
public:
    explicit HotKeyProgram(const VirtualDesktop& desktop);

    HotKeys::Registration bind(std::uint32_t keyCode, std::uint32_t modifiers, std::uint32_t id);

    /// The ids of the hot keys that were pressed since the last call.
    Ids presses();

    /// Waits until so many repeats of a held key came.
    bool awaitRepeats(int count);

    Client client;
    std::optional<desktop::X11HotKeys> hotKeys;
    /// Of the handler that notes the presses.
    HotKeys::Installation installation;
    /// How many events the hot keys kept from going further.
    int swallowed = 0;

private:
    static OSStatus handle(const HotKeyEvent* event, void* userData);

    void take(const xcb_generic_event_t& event);

    Ids m_pressed;
    int m_keyPresses = 0;
};

/// A program with hot keys on a server of its own, and a keyboard to press them.
class X11HotKeysTest : public testing::Test {
protected:
    /// Whether a program that knows nothing of the tested one could grab exactly this.
    bool canBeGrabbed(xcb_keycode_t keyCode, unsigned modifiers) const;

    VirtualDesktop server{serverAlone};
    TestKeyboard keyboard{server.display()};
    HotKeyProgram program{server};
};

} // namespace quillon::test
