#include "desktop/x11/ModifierMap.h"

#include "platform/HotKeys.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace quillon::test {

namespace {

using desktop::ModifierMap;

constexpr xcb_keysym_t scrollLock = 0xFF14;
constexpr xcb_keysym_t numLock = 0xFF7F;
constexpr xcb_keysym_t metaLeft = 0xFFE7;
constexpr xcb_keysym_t altRight = 0xFFEA;
constexpr xcb_keysym_t superRight = 0xFFEC;

} // namespace

TEST(ModifierMap, usually_command_is_mod4_and_option_is_mod1) {
    const auto map = ModifierMap::usual();
    EXPECT_EQ(map.state(cmdKey), XCB_MOD_MASK_4);
    EXPECT_EQ(map.state(optionKey), XCB_MOD_MASK_1);
    EXPECT_EQ(map.locks(), XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2);
}

TEST(ModifierMap, modifiers_are_combined) {
    EXPECT_EQ(ModifierMap::usual().state(cmdKey | shiftKey | optionKey | controlKey),
              XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_1 | XCB_MOD_MASK_CONTROL);
    EXPECT_EQ(ModifierMap::usual().state(0), 0);
}

TEST(ModifierMap, bits_that_are_no_modifier_are_ignored) {
    EXPECT_EQ(ModifierMap::usual().state(0xFFFF0000 | shiftKey), XCB_MOD_MASK_SHIFT);
}

TEST(ModifierMap, follows_what_the_keys_are_bound_to) {
    ModifierMap::Symbols symbols;
    symbols[XCB_MAP_INDEX_2] = {0, superRight};
    symbols[XCB_MAP_INDEX_3] = {altRight};
    symbols[XCB_MAP_INDEX_4] = {scrollLock};
    symbols[XCB_MAP_INDEX_5] = {numLock};
    const ModifierMap map(symbols);
    EXPECT_EQ(map.state(cmdKey), XCB_MOD_MASK_2);
    EXPECT_EQ(map.state(optionKey), XCB_MOD_MASK_3);
    EXPECT_EQ(map.locks(), XCB_MOD_MASK_LOCK | XCB_MOD_MASK_4 | XCB_MOD_MASK_5);
}

TEST(ModifierMap, without_an_alt_key_option_is_meta) {
    ModifierMap::Symbols symbols;
    symbols[XCB_MAP_INDEX_3] = {metaLeft};
    EXPECT_EQ(ModifierMap(symbols).state(optionKey), XCB_MOD_MASK_3);
    symbols[XCB_MAP_INDEX_5] = {altRight};
    EXPECT_EQ(ModifierMap(symbols).state(optionKey), XCB_MOD_MASK_5);
}

TEST(ModifierMap, a_missing_modifier_has_no_state) {
    const ModifierMap map(ModifierMap::Symbols{});
    EXPECT_FALSE(map.state(cmdKey));
    EXPECT_FALSE(map.state(optionKey | shiftKey));
    EXPECT_EQ(map.state(shiftKey | controlKey), XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL);
}

TEST(ModifierMap, lists_every_state_of_the_lock_modifiers_once) {
    ModifierMap::Symbols symbols;
    symbols[XCB_MAP_INDEX_2] = {numLock};
    EXPECT_EQ(ModifierMap(symbols).lockStates().size(), 4U);

    symbols[XCB_MAP_INDEX_3] = {scrollLock};
    const ModifierMap map(symbols);
    const auto states = map.lockStates();
    EXPECT_EQ(states.size(), 8U);
    EXPECT_EQ(std::set(states.begin(), states.end()).size(), 8U);
    EXPECT_TRUE(std::ranges::all_of(
        states, [&](std::uint16_t state) { return (state & ~map.locks()) == 0; }));
}

TEST(ModifierMap, tells_the_modifiers_of_a_state_and_leaves_locks_and_buttons_out) {
    const ModifierMap map = ModifierMap::usual();
    for (const std::uint32_t modifiers :
         {cmdKey, shiftKey, optionKey, controlKey, cmdKey | shiftKey | optionKey | controlKey}) {
        EXPECT_EQ(map.modifiers(*map.state(modifiers)), modifiers);
    }
    EXPECT_EQ(map.modifiers(map.locks()), 0U);
    EXPECT_EQ(map.modifiers(XCB_BUTTON_MASK_1), 0U);
}

} // namespace quillon::test
