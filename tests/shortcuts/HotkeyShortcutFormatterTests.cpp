#include "platform/HotKeys.h"
#include "platform/KeyEvent.h"
#include "shortcuts/HotkeyShortcutFormatter.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace quillon::test {

namespace {

std::string label(std::uint32_t keyCode, std::uint32_t modifiers) {
    return HotkeyShortcutFormatter::label({keyCode, modifiers, HotkeyAction::undo});
}

/// What is printed on each key that has a name; nothing for the others.
const std::map<std::uint32_t, std::string>& names() {
    static const std::map<std::uint32_t, std::string> byCode{
        {0, "A"},      {1, "S"},  {2, "D"},       {3, "F"},    {4, "H"},  {5, "G"},
        {6, "Z"},      {7, "X"},  {8, "C"},       {9, "V"},    {11, "B"}, {12, "Q"},
        {13, "W"},     {14, "E"}, {15, "R"},      {16, "Y"},   {17, "T"}, {18, "1"},
        {19, "2"},     {20, "3"}, {21, "4"},      {22, "6"},   {23, "5"}, {24, "="},
        {25, "9"},     {26, "7"}, {27, "-"},      {28, "8"},   {29, "0"}, {30, "]"},
        {31, "O"},     {32, "U"}, {33, "["},      {34, "I"},   {35, "P"}, {36, "Return"},
        {37, "L"},     {38, "J"}, {39, "'"},      {40, "K"},   {41, ";"}, {42, "\\"},
        {43, ","},     {44, "/"}, {45, "N"},      {46, "M"},   {47, "."}, {48, "Tab"},
        {49, "Space"}, {50, "`"}, {51, "Delete"}, {53, "Esc"},
    };
    return byCode;
}

} // namespace

TEST(HotkeyShortcutFormatter, the_modifiers_stand_before_the_key_with_nothing_between) {
    EXPECT_EQ(label(1, 768), "⌘⇧S");
}

TEST(HotkeyShortcutFormatter, the_modifiers_stand_in_the_order_command_shift_option_control) {
    EXPECT_EQ(label(0, 0x1B00), "⌘⇧⌥⌃A");
    EXPECT_EQ(label(0, 0x1800), "⌥⌃A");
}

TEST(HotkeyShortcutFormatter, escape_has_a_name) {
    EXPECT_EQ(label(53, 0x100), "⌘Esc");
}

TEST(HotkeyShortcutFormatter, a_key_without_a_name_shows_its_code) {
    EXPECT_EQ(label(10, 0), "Key(10)");
    EXPECT_EQ(label(52, 0), "Key(52)");
    EXPECT_EQ(label(122, 0x1000), "⌃Key(122)");
    EXPECT_EQ(label(4294967295U, 0), "Key(4294967295)");
}

TEST(HotkeyShortcutFormatter, the_codes_of_5_and_6_are_not_in_the_order_of_the_digits) {
    EXPECT_EQ(label(22, 0), "6");
    EXPECT_EQ(label(23, 0), "5");
}

TEST(HotkeyShortcutFormatter, every_key_shows_its_own_name_or_its_code) {
    for (std::uint32_t code = 0; code < 130; ++code) {
        const auto name = names().find(code);
        EXPECT_EQ(label(code, 0),
                  name == names().end() ? "Key(" + std::to_string(code) + ")" : name->second);
    }
}

TEST(HotkeyShortcutFormatter, bits_that_are_no_modifier_are_left_out_of_the_label) {
    EXPECT_EQ(label(1, 0xFFFFFFFF & ~0x1B00U), "S");
}

TEST(HotkeyShortcutFormatter, each_event_flag_becomes_its_modifier) {
    EXPECT_EQ(HotkeyShortcutFormatter::carbonModifiers(0x100000), cmdKey);
    EXPECT_EQ(HotkeyShortcutFormatter::carbonModifiers(0x20000), shiftKey);
    EXPECT_EQ(HotkeyShortcutFormatter::carbonModifiers(0x80000), optionKey);
    EXPECT_EQ(HotkeyShortcutFormatter::carbonModifiers(0x40000), controlKey);
    EXPECT_EQ(HotkeyShortcutFormatter::carbonModifiers(0x1E0000), 0x1B00U);
}

TEST(HotkeyShortcutFormatter, caps_lock_and_the_function_key_contribute_nothing) {
    EXPECT_EQ(HotkeyShortcutFormatter::carbonModifiers(NSEventModifierFlags::capsLock), 0U);
    EXPECT_EQ(HotkeyShortcutFormatter::carbonModifiers(NSEventModifierFlags::function), 0U);
}

TEST(HotkeyShortcutFormatter, flags_of_the_device_contribute_nothing) {
    // The low bits tell left from right; some of them have the values of modifiers.
    EXPECT_EQ(HotkeyShortcutFormatter::carbonModifiers(0xFFFF), 0U);
    EXPECT_EQ(HotkeyShortcutFormatter::carbonModifiers(0x100000 | 0x0B), cmdKey);
}

} // namespace quillon::test
