#include "desktop/x11/KeyTable.h"

#include "desktop/x11/Client.h"
#include "desktop/x11/KeyboardMap.h"
#include "desktop/x11/ServerAlone.h"
#include "desktop/x11/TestKeyboard.h"
#include "desktop/x11/VirtualKey.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace quillon::test {

namespace {

using desktop::KeyboardMap;
using desktop::KeyTable;
using desktop::virtualKeys;

constexpr xcb_keysym_t latin(char letter) {
    return static_cast<xcb_keysym_t>(letter);
}

/// What the unshifted key means on the layout that the server has.
xcb_keysym_t meaningOf(xcb_connection_t* connection, xcb_keycode_t keyCode) {
    const desktop::XcbOwned<xcb_get_keyboard_mapping_reply_t> reply(xcb_get_keyboard_mapping_reply(
        connection, xcb_get_keyboard_mapping(connection, keyCode, 1), nullptr));
    return *xcb_get_keyboard_mapping_keysyms(reply.get());
}

} // namespace

TEST(KeyTable, no_virtual_key_name_or_key_code_occurs_twice) {
    std::set<std::uint32_t> codes;
    std::set<xcb_keycode_t> keyCodes;
    std::set<std::string_view> names;
    for (const auto& key : virtualKeys()) {
        EXPECT_TRUE(codes.insert(key.code).second) << key.code;
        EXPECT_TRUE(keyCodes.insert(key.evdevKeyCode).second) << key.code;
        for (const auto name : key.names) {
            EXPECT_LE(name.size(), 4U);
            EXPECT_TRUE(name.empty() || names.insert(name).second) << name;
        }
    }
}

TEST(KeyTable, one_way_takes_back_what_the_other_way_yields) {
    const auto table = KeyTable::evdev();
    for (const auto& key : virtualKeys()) {
        const auto keyCode = table.keyCode(key.code);
        ASSERT_TRUE(keyCode) << key.code;
        EXPECT_EQ(table.virtualKey(*keyCode), key.code);
    }
}

TEST(KeyTable, a_code_that_is_no_key_has_no_place) {
    const auto table = KeyTable::evdev();
    EXPECT_FALSE(table.keyCode(52));
    EXPECT_FALSE(table.keyCode(0xFFFFFFFF));
    EXPECT_FALSE(table.virtualKey(key::leftShift));
}

TEST(KeyTable, takes_a_key_by_another_name_where_the_usual_one_is_missing) {
    const KeyTable table({{"AC12", 200}, {"HZTG", 201}});
    EXPECT_EQ(table.keyCode(42), 200);
    EXPECT_EQ(table.keyCode(50), 201);
    EXPECT_FALSE(table.keyCode(1));
}

TEST(KeyTable, two_virtual_keys_never_share_an_x_key_code) {
    const KeyTable table({{"AC01", 70}, {"AC02", 70}});
    EXPECT_EQ(table.virtualKey(70), 0U);
    EXPECT_FALSE(table.keyCode(1));
}

class KeyTableOnAServer : public testing::Test {
protected:
    KeyTable readTable() { return KeyboardMap::read(client.connection()).keys; }

    VirtualDesktop server{serverAlone};
    Client client{server.display()};
    TestKeyboard keyboard{server.display()};
};

TEST_F(KeyTableOnAServer, the_kernels_numbering_is_what_the_server_tells) {
    keyboard.load("-rules evdev -model pc105 -layout us");
    const auto fallback = KeyTable::evdev();
    const auto told = readTable();
    for (const auto& key : virtualKeys()) {
        EXPECT_EQ(told.keyCode(key.code), fallback.keyCode(key.code)) << key.names[0];
    }
}

TEST_F(KeyTableOnAServer, the_places_of_the_american_layout_carry_its_letters) {
    keyboard.load("-rules evdev -model pc105 -layout us");
    const auto table = readTable();
    // By virtual key code, from 0; a space where the code is not a character of the main block.
    const std::string letters = "asdfhgzxcv bqweryt123465=97-80]ou[ip lj'k;\\,/nm.  `";
    for (std::uint32_t code = 0; code < letters.size(); ++code) {
        if (letters[code] == ' ') {
            continue;
        }
        const auto keyCode = table.keyCode(code);
        ASSERT_TRUE(keyCode) << code;
        EXPECT_EQ(meaningOf(client.connection(), *keyCode), latin(letters[code])) << code;
    }
}

TEST_F(KeyTableOnAServer, the_other_keys_are_the_ones_that_their_codes_say) {
    keyboard.load("-rules evdev -model pc105 -layout us");
    const auto table = readTable();
    const std::pair<std::uint32_t, xcb_keysym_t> keys[] = {
        {10, 0x3C},    // less, on the key beside the left shift
        {36, 0xFF0D},  // Return
        {48, 0xFF09},  // Tab
        {49, 0x20},    // space
        {51, 0xFF08},  // BackSpace
        {53, 0xFF1B},  // Escape
        {110, 0xFF67}, // Menu
        {114, 0xFF63}, // Insert
        {115, 0xFF50}, // Home
        {116, 0xFF55}, // Page Up
        {117, 0xFFFF}, // Delete
        {119, 0xFF57}, // End
        {121, 0xFF56}, // Page Down
        {123, 0xFF51}, // Left
        {124, 0xFF53}, // Right
        {125, 0xFF54}, // Down
        {126, 0xFF52}, // Up
        {122, 0xFFBE}, // F1
        {120, 0xFFBF}, // F2
        {99, 0xFFC0},  // F3
        {118, 0xFFC1}, // F4
        {96, 0xFFC2},  // F5
        {97, 0xFFC3},  // F6
        {98, 0xFFC4},  // F7
        {100, 0xFFC5}, // F8
        {101, 0xFFC6}, // F9
        {109, 0xFFC7}, // F10
        {103, 0xFFC8}, // F11
        {111, 0xFFC9}, // F12
        {65, 0xFF9F},  // keypad decimal
        {67, 0xFFAA},  // keypad multiply
        {69, 0xFFAB},  // keypad add
        {71, 0xFF7F},  // Num Lock, in the place of Clear
        {75, 0xFFAF},  // keypad divide
        {76, 0xFF8D},  // keypad Enter
        {78, 0xFFAD},  // keypad subtract
        {81, 0xFFBD},  // keypad equal
        {82, 0xFF9E},  // keypad 0
        {83, 0xFF9C},  // keypad 1
        {84, 0xFF99},  // keypad 2
        {85, 0xFF9B},  // keypad 3
        {86, 0xFF96},  // keypad 4
        {87, 0xFF9D},  // keypad 5
        {88, 0xFF98},  // keypad 6
        {89, 0xFF95},  // keypad 7
        {91, 0xFF97},  // keypad 8
        {92, 0xFF9A},  // keypad 9
    };
    for (const auto& [code, keysym] : keys) {
        const auto keyCode = table.keyCode(code);
        ASSERT_TRUE(keyCode) << code;
        EXPECT_EQ(meaningOf(client.connection(), *keyCode), keysym) << code;
    }
}

TEST_F(KeyTableOnAServer, a_place_is_found_whatever_the_layout_prints_on_it) {
    keyboard.load("-rules evdev -model pc105 -layout fr");
    const auto keyCode = readTable().keyCode(0);
    ASSERT_TRUE(keyCode);
    EXPECT_EQ(meaningOf(client.connection(), *keyCode), latin('q'));
}

TEST_F(KeyTableOnAServer, a_place_is_found_whatever_the_numbering) {
    keyboard.load("-keycodes xfree86 -layout us");
    const auto table = readTable();
    EXPECT_EQ(table.keyCode(115), 97); // Home
    EXPECT_EQ(table.virtualKey(97), 115U);
    EXPECT_EQ(table.keyCode(76), 108); // keypad Enter
    EXPECT_FALSE(table.keyCode(90));   // F20, which it lacks
}

} // namespace quillon::test
