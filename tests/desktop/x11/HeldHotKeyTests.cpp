#include "desktop/x11/HotKeyProgram.h"

#include <cstdint>

namespace quillon::test {

using desktop::XcbOwned;

namespace {

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

} // namespace

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
    const auto window = xcb_generate_id(program.client.connection());
    constexpr std::uint32_t keyEvents[] = {XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE};
    xcb_create_window(program.client.connection(), XCB_COPY_FROM_PARENT, window,
                      program.client.root(), 0, 0, 9, 9, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, keyEvents);
    xcb_map_window(program.client.connection(), window);
    xcb_set_input_focus(program.client.connection(), XCB_INPUT_FOCUS_POINTER_ROOT, window,
                        XCB_CURRENT_TIME);
    program.client.sync();

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
