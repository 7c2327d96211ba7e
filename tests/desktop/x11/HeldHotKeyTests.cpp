#include "desktop/x11/HotKeyProgram.h"

#include <cstdint>

namespace quillon::test {

using desktop::XcbOwned;

namespace {

/// A window of that program which has the keyboard and hears its keys.
xcb_window_t windowWithKeyboard(const Client& client) {
    const auto window = xcb_generate_id(client.connection());
    constexpr std::uint32_t keyEvents[] = {XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE};
    xcb_create_window(client.connection(), XCB_COPY_FROM_PARENT, window, client.root(), 0, 0, 9, 9,
                      0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      keyEvents);
    xcb_map_window(client.connection(), window);
    xcb_set_input_focus(client.connection(), XCB_INPUT_FOCUS_POINTER_ROOT, window,
                        XCB_CURRENT_TIME);
    client.sync();
    return window;
}

/// Keys that repeat as long as they are held.
class HeldHotKey : public X11HotKeysTest {
protected:
    void holdCombination() {
        for (const xcb_keycode_t keyCode : {key::leftSuper, key::leftShift, key::s}) {
            keyboard.press(keyCode);
        }
    }

    void expectOnePressForEachHold() {
        keyboard.setRepeat(30, 10);
        program.presses();
        program.bind(virtualKey::s, commandShift, 1);
        holdCombination();
        EXPECT_TRUE(program.awaitRepeats(6));
        keyboard.release(key::s);
        EXPECT_EQ(program.presses(), Ids{1});

        keyboard.press(key::s);
        keyboard.release(key::s);
        EXPECT_EQ(program.presses(), Ids{1});
    }
};

/// While a menu of the program is open, which another program's window has lent the keyboard.
class HotKeyInAMenu : public HeldHotKey {
protected:
    HotKeyInAMenu() {
        program.bind(virtualKey::s, commandShift, 1);
        const Client& owner = program.client;
        const XcbOwned<xcb_grab_keyboard_reply_t> grab(xcb_grab_keyboard_reply(
            owner.connection(),
            xcb_grab_keyboard(owner.connection(), 1, windowWithKeyboard(owner), XCB_CURRENT_TIME,
                              XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
            nullptr));
        EXPECT_TRUE(grab && grab->status == XCB_GRAB_STATUS_SUCCESS);
        windowWithKeyboard(other);
    }

    void closeMenu() {
        xcb_ungrab_keyboard(program.client.connection(), XCB_CURRENT_TIME);
        program.client.sync();
    }

    Client other{server.display()};
};

} // namespace

TEST_F(HotKeyInAMenu, can_be_pressed_again_at_once_though_it_was_let_go_elsewhere) {
    holdCombination();
    ASSERT_EQ(program.presses(), Ids{1});
    closeMenu();
    keyboard.release(key::s);
    // From now on a repeat could come at any time.
    keyboard.setRepeat(1, 1);
    EXPECT_EQ(program.presses(), Ids{});
    keyboard.press(key::s);
    keyboard.release(key::s);
    EXPECT_EQ(program.presses(), Ids{1});
}

TEST_F(HotKeyInAMenu, is_one_press_though_it_is_held_beyond_the_menu) {
    keyboard.setRepeat(30, 10);
    holdCombination();
    EXPECT_TRUE(program.awaitRepeats(4));
    closeMenu();
    EXPECT_TRUE(program.awaitRepeats(4));
    keyboard.release(key::s);
    EXPECT_EQ(program.presses(), Ids{1});
    keyboard.press(key::s);
    keyboard.release(key::s);
    EXPECT_EQ(program.presses(), Ids{1});
}

TEST_F(HotKeyInAMenu, listens_to_the_keys_of_other_programs_only_until_it_is_up) {
    holdCombination();
    closeMenu();
    program.presses();
    keyboard.release(key::s);
    program.presses();
    const int before = program.swallowed;
    keyboard.strike({key::h});
    program.presses();
    EXPECT_EQ(program.swallowed, before);
}

TEST_F(HeldHotKey, a_held_key_is_one_press_though_each_repeat_comes_with_a_release) {
    expectOnePressForEachHold();
}

TEST_F(HeldHotKey, a_held_key_is_one_press_though_its_repeats_come_without_releases) {
    const auto flags =
        xcb_xkb_per_client_flags(program.client.connection(), XCB_XKB_ID_USE_CORE_KBD,
                                 XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT,
                                 XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT, 0, 0, 0);
    const XcbOwned<xcb_xkb_per_client_flags_reply_t> reply(
        xcb_xkb_per_client_flags_reply(program.client.connection(), flags, nullptr));
    ASSERT_TRUE(reply);
    expectOnePressForEachHold();
}

TEST_F(HeldHotKey, a_held_key_is_one_press_though_its_modifiers_go_and_come_back) {
    keyboard.setRepeat(30, 10);
    program.presses();
    program.bind(virtualKey::s, commandShift, 1);
    program.bind(virtualKey::s, 0, 2);
    holdCombination();
    keyboard.release(key::leftShift);
    keyboard.release(key::leftSuper);
    EXPECT_TRUE(program.awaitRepeats(3));
    keyboard.press(key::leftSuper);
    keyboard.press(key::leftShift);
    EXPECT_TRUE(program.awaitRepeats(3));
    keyboard.release(key::s);
    EXPECT_EQ(program.presses(), Ids{1});
}

TEST_F(HeldHotKey, a_key_that_is_held_while_it_is_registered_waits_for_its_next_press) {
    windowWithKeyboard(program.client);
    keyboard.setRepeat(30, 10);
    holdCombination();
    EXPECT_TRUE(program.awaitRepeats(2));
    EXPECT_EQ(program.swallowed, 0) << "the window's own keys are left alone";
    program.bind(virtualKey::s, commandShift, 1);
    EXPECT_TRUE(program.awaitRepeats(4));
    keyboard.release(key::s);
    EXPECT_EQ(program.presses(), Ids{});

    keyboard.press(key::s);
    EXPECT_EQ(program.presses(), Ids{1});
}

} // namespace quillon::test
