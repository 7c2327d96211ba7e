#pragma once

#include "desktop/x11/Client.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace quillon::test {

/// X key codes in the evdev numbering, which the virtual server uses.
namespace key {
inline constexpr xcb_keycode_t control = 37;
inline constexpr xcb_keycode_t s = 39;
inline constexpr xcb_keycode_t h = 43;
inline constexpr xcb_keycode_t leftShift = 50;
inline constexpr xcb_keycode_t leftAlt = 64;
inline constexpr xcb_keycode_t scrollLock = 78;
inline constexpr xcb_keycode_t home = 110;
inline constexpr xcb_keycode_t leftSuper = 133;
inline constexpr xcb_keycode_t rightSuper = 134;
} // namespace key

/// A keyboard whose keys a test strikes by their places, and whose layout and state it may change.
/// Every operation returns when the server is done with it.
class TestKeyboard {
public:
    explicit TestKeyboard(const std::string& display)
        : m_client(display)
        , m_display(display) {}

    void press(xcb_keycode_t keyCode);
    void release(xcb_keycode_t keyCode);
    /// Presses the keys in order and releases them in the reverse order.
    void strike(std::initializer_list<xcb_keycode_t> keyCodes);

    void pressButton(std::uint8_t button);

    /// Locks exactly these modifiers.
    void lock(std::uint8_t modifiers);
    /// Makes one of the layout's groups the current one.
    void lockGroup(std::uint8_t group);
    void setRepeat(std::uint16_t delay, std::uint16_t interval);

    /// Binds exactly these keys to one of the eight modifiers, by the core protocol.
    void bindModifier(xcb_map_index_t modifier, const std::vector<xcb_keycode_t>& keyCodes);
    /// Gives the server another keyboard: the arguments are those of `setxkbmap`.
    void load(const std::string& description);

private:
    void fake(std::uint8_t type, std::uint8_t detail);

    Client m_client;
    std::string m_display;
};

} // namespace quillon::test
