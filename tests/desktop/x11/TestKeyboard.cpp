#include "desktop/x11/TestKeyboard.h"

#include "foundation/FatalError.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

#include <xcb/xtest.h>

namespace quillon::test {

using desktop::XcbOwned;

void TestKeyboard::press(xcb_keycode_t keyCode) {
    fake(XCB_KEY_PRESS, keyCode);
}

void TestKeyboard::release(xcb_keycode_t keyCode) {
    fake(XCB_KEY_RELEASE, keyCode);
}

void TestKeyboard::pressButton(std::uint8_t button) {
    fake(XCB_BUTTON_PRESS, button);
}

void TestKeyboard::fake(std::uint8_t type, std::uint8_t detail) {
    // The server waits this long before the event, so that no two have the same time.
    constexpr std::uint32_t milliseconds = 2;
    xcb_test_fake_input(m_client.connection(), type, detail, milliseconds, XCB_NONE, 0, 0, 0);
    m_client.sync();
}

void TestKeyboard::strike(std::initializer_list<xcb_keycode_t> keyCodes) {
    for (const xcb_keycode_t keyCode : keyCodes) {
        press(keyCode);
    }
    for (auto keyCode = std::rbegin(keyCodes); keyCode != std::rend(keyCodes); ++keyCode) {
        release(*keyCode);
    }
}

void TestKeyboard::lock(std::uint8_t modifiers) {
    xcb_xkb_use_extension(m_client.connection(), 1, 0);
    xcb_xkb_latch_lock_state(m_client.connection(), XCB_XKB_ID_USE_CORE_KBD, 0xFF, modifiers, 0, 0,
                             0, 0, 0);
    m_client.sync();
}

void TestKeyboard::lockGroup(std::uint8_t group) {
    xcb_xkb_use_extension(m_client.connection(), 1, 0);
    xcb_xkb_latch_lock_state(m_client.connection(), XCB_XKB_ID_USE_CORE_KBD, 0, 0, 1, group, 0, 0,
                             0);
    m_client.sync();
}

void TestKeyboard::setRepeat(std::uint16_t delay, std::uint16_t interval) {
    constexpr std::uint32_t repeatKeys = XCB_XKB_BOOL_CTRL_REPEAT_KEYS;
    constexpr std::uint8_t perKeyRepeat[32]{};
    xcb_xkb_use_extension(m_client.connection(), 1, 0);
    xcb_xkb_set_controls(m_client.connection(), XCB_XKB_ID_USE_CORE_KBD, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                         0, 0, repeatKeys, repeatKeys, repeatKeys, delay, interval, 0, 0, 0, 0, 0,
                         0, 0, 0, 0, 0, 0, 0, perKeyRepeat);
    m_client.sync();
}

void TestKeyboard::bindModifier(xcb_map_index_t modifier,
                                const std::vector<xcb_keycode_t>& keyCodes) {
    xcb_connection_t* connection = m_client.connection();
    const XcbOwned<xcb_get_modifier_mapping_reply_t> before(
        xcb_get_modifier_mapping_reply(connection, xcb_get_modifier_mapping(connection), nullptr));
    const std::size_t oldWidth = before->keycodes_per_modifier;
    const std::size_t width = std::max(oldWidth, keyCodes.size());
    const xcb_keycode_t* old = xcb_get_modifier_mapping_keycodes(before.get());

    std::vector<xcb_keycode_t> table(8 * width);
    for (std::size_t row = 0; row < 8; ++row) {
        const auto place = table.begin() + static_cast<std::ptrdiff_t>(row * width);
        if (row == modifier) {
            std::ranges::copy(keyCodes, place);
        } else {
            std::copy_n(old + row * oldWidth, oldWidth, place);
        }
    }
    const XcbOwned<xcb_set_modifier_mapping_reply_t> reply(xcb_set_modifier_mapping_reply(
        connection,
        xcb_set_modifier_mapping(connection, static_cast<std::uint8_t>(width), table.data()),
        nullptr));
    if (!reply || reply->status != XCB_MAPPING_STATUS_SUCCESS) {
        fatalError("the server refused a modifier mapping");
    }
}

void TestKeyboard::load(const std::string& description) {
    const std::string command = "setxkbmap -display " + m_display + " " + description +
                                " -print | xkbcomp -w 0 - " + m_display + " 2>/dev/null";
    if (std::system(command.c_str()) != 0) {
        fatalError("the server refused a keyboard");
    }
    m_client.sync();
}

} // namespace quillon::test
