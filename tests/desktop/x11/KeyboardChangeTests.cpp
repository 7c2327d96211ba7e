#include "desktop/x11/HotKeyProgram.h"

#include <memory>

namespace quillon::test {

/// What becomes of hot keys when the keyboard changes under them.
using KeyboardChange = X11HotKeysTest;

TEST_F(KeyboardChange, hot_keys_follow_a_modifier_that_moves) {
    program.bind(virtualKey::s, commandShift, 1);
    keyboard.bindModifier(XCB_MAP_INDEX_4, {});
    keyboard.bindModifier(XCB_MAP_INDEX_3, {key::leftSuper});
    EXPECT_EQ(program.presses(), Ids{});
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    EXPECT_EQ(program.presses(), Ids{1});
    EXPECT_TRUE(canBeGrabbed(key::s, superShift)) << "the old place is given back";
}

TEST_F(KeyboardChange, hot_keys_outlast_a_time_without_their_modifier) {
    program.bind(virtualKey::s, commandShift, 1);
    keyboard.bindModifier(XCB_MAP_INDEX_4, {});
    EXPECT_EQ(program.presses(), Ids{});
    keyboard.bindModifier(XCB_MAP_INDEX_4, {key::leftSuper});
    EXPECT_EQ(program.presses(), Ids{});
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    EXPECT_EQ(program.presses(), Ids{1});
}

TEST_F(KeyboardChange, a_lock_modifier_that_comes_later_plays_no_part_either) {
    program.bind(virtualKey::s, commandShift, 1);
    keyboard.bindModifier(XCB_MAP_INDEX_3, {key::scrollLock});
    EXPECT_EQ(program.presses(), Ids{});
    keyboard.lock(XCB_MOD_MASK_3);
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    EXPECT_EQ(program.presses(), Ids{1});
}

TEST_F(KeyboardChange, hot_keys_follow_a_keyboard_with_another_numbering) {
    program.bind(virtualKey::home, commandShift, 1);
    keyboard.load("-keycodes xfree86 -layout us");
    EXPECT_EQ(program.presses(), Ids{});
    EXPECT_TRUE(canBeGrabbed(key::home, superShift));

    constexpr xcb_keycode_t superThere = 115;
    constexpr xcb_keycode_t homeThere = 97;
    keyboard.strike({superThere, key::leftShift, homeThere});
    EXPECT_EQ(program.presses(), Ids{1});
}

TEST_F(KeyboardChange, hot_keys_stay_at_their_place_when_the_layout_changes) {
    program.bind(virtualKey::s, commandShift, 1);
    keyboard.load("-rules evdev -model pc105 -layout us -variant dvorak");
    EXPECT_EQ(program.presses(), Ids{});
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    EXPECT_EQ(program.presses(), Ids{1});
}

TEST_F(KeyboardChange, a_swap_of_alt_and_super_swaps_the_keys_and_not_the_hot_key) {
    program.bind(virtualKey::s, commandShift, 1);
    keyboard.load("-rules evdev -model pc105 -layout us -option altwin:swap_alt_win");
    EXPECT_EQ(program.presses(), Ids{});
    keyboard.strike({key::leftAlt, key::leftShift, key::s});
    EXPECT_EQ(program.presses(), Ids{1});
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    EXPECT_EQ(program.presses(), Ids{});
}

TEST_F(KeyboardChange, a_combination_that_is_taken_after_a_change_is_tried_again_with_the_next) {
    program.bind(virtualKey::s, commandShift, 1);
    auto other = std::make_unique<Client>(server.display());
    xcb_grab_key(other->connection(), 0, other->root(), XCB_MOD_MASK_3 | XCB_MOD_MASK_SHIFT, key::s,
                 XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    other->sync();
    keyboard.bindModifier(XCB_MAP_INDEX_4, {});
    keyboard.bindModifier(XCB_MAP_INDEX_3, {key::leftSuper});
    program.presses();
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    EXPECT_EQ(program.presses(), Ids{});

    other.reset();
    keyboard.bindModifier(XCB_MAP_INDEX_5, {key::rightSuper});
    program.presses();
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    EXPECT_EQ(program.presses(), Ids{1});
}

} // namespace quillon::test
