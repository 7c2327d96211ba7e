#include "desktop/x11/HotKeyProgram.h"

#include <memory>
#include <vector>

namespace quillon::test {

using desktop::eventAs;
using desktop::eventType;
using desktop::X11HotKeys;
using desktop::XcbOwned;

TEST_F(X11HotKeysTest, a_press_reaches_the_handler_whoever_has_the_keyboard) {
    EXPECT_EQ(program.bind(virtualKey::s, commandShift, 7).status, noErr);
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    EXPECT_EQ(program.presses(), Ids{7});
}

TEST_F(X11HotKeysTest, the_modifiers_may_be_pressed_in_any_order_and_on_either_side) {
    program.bind(virtualKey::s, commandShift, 1);
    keyboard.strike({key::leftShift, key::rightSuper, key::s});
    EXPECT_EQ(program.presses(), Ids{1});
}

TEST_F(X11HotKeysTest, each_press_is_one_call) {
    program.bind(virtualKey::s, commandShift, 1);
    program.bind(virtualKey::h, commandShift, 2);
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    keyboard.strike({key::leftSuper, key::leftShift, key::h});
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    EXPECT_EQ(program.presses(), (Ids{1, 2, 1}));
}

TEST_F(X11HotKeysTest, a_second_key_may_be_pressed_while_the_first_is_held) {
    program.bind(virtualKey::s, commandShift, 1);
    program.bind(virtualKey::h, commandShift, 2);
    keyboard.strike({key::leftSuper, key::leftShift, key::s, key::h});
    EXPECT_EQ(program.presses(), (Ids{1, 2}));
}

TEST_F(X11HotKeysTest, a_menu_of_the_program_that_has_the_whole_keyboard_leaves_them_alive) {
    program.bind(virtualKey::s, commandShift, 1);
    xcb_connection_t* connection = program.client.connection();
    const xcb_window_t menu = xcb_generate_id(connection);
    const std::uint32_t mask = XCB_EVENT_MASK_KEY_PRESS;
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, menu, program.client.root(), 0, 0, 50, 50,
                      0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &mask);
    xcb_map_window(connection, menu);
    const XcbOwned<xcb_grab_keyboard_reply_t> grabbed(
        xcb_grab_keyboard_reply(connection,
                                xcb_grab_keyboard(connection, 0, menu, XCB_CURRENT_TIME,
                                                  XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
                                nullptr));
    ASSERT_EQ(grabbed->status, XCB_GRAB_STATUS_SUCCESS);
    keyboard.strike({key::s});
    EXPECT_EQ(program.presses(), Ids{});
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    EXPECT_EQ(program.presses(), Ids{1});
    EXPECT_EQ(program.swallowed, 1);
}

TEST_F(X11HotKeysTest, only_exactly_its_modifiers_match) {
    program.bind(virtualKey::s, commandShift, 1);
    keyboard.strike({key::s});
    keyboard.strike({key::leftSuper, key::s});
    keyboard.strike({key::leftShift, key::s});
    keyboard.strike({key::leftSuper, key::leftShift, key::control, key::s});
    keyboard.strike({key::leftSuper, key::leftShift, key::leftAlt, key::s});
    keyboard.strike({key::leftSuper, key::leftShift, key::h});
    EXPECT_EQ(program.presses(), Ids{});
}

TEST_F(X11HotKeysTest, one_key_may_stand_for_several_hot_keys_with_different_modifiers) {
    program.bind(virtualKey::s, 0, 1);
    program.bind(virtualKey::s, optionKey, 2);
    program.bind(virtualKey::s, optionKey | controlKey, 3);
    keyboard.strike({key::control, key::leftAlt, key::s});
    keyboard.strike({key::leftAlt, key::s});
    keyboard.strike({key::s});
    EXPECT_EQ(program.presses(), (Ids{3, 2, 1}));
}

TEST_F(X11HotKeysTest, the_lock_keys_play_no_part) {
    keyboard.bindModifier(XCB_MAP_INDEX_3, {key::scrollLock});
    program.presses();
    program.bind(virtualKey::s, commandShift, 1);
    constexpr unsigned caps = XCB_MOD_MASK_LOCK;
    constexpr unsigned num = XCB_MOD_MASK_2;
    constexpr unsigned scroll = XCB_MOD_MASK_3;
    for (const unsigned locks :
         {0U, caps, num, scroll, caps | num, caps | scroll, num | scroll, caps | num | scroll}) {
        keyboard.lock(static_cast<std::uint8_t>(locks));
        keyboard.strike({key::leftSuper, key::leftShift, key::s});
        EXPECT_EQ(program.presses(), Ids{1}) << "locks " << locks;
        keyboard.strike({key::leftSuper, key::s});
        EXPECT_EQ(program.presses(), Ids{}) << "locks " << locks;
    }
}

// Of the key that begins a grab the server tells the modifiers alone, of a second one that is
// pressed meanwhile the layout too.

TEST_F(X11HotKeysTest, the_current_layout_of_several_plays_no_part) {
    keyboard.load("-rules evdev -model pc105 -layout us,ru");
    program.presses();
    program.bind(virtualKey::s, commandShift, 1);
    program.bind(virtualKey::h, commandShift, 2);
    for (const std::uint8_t group : {std::uint8_t{0}, std::uint8_t{1}}) {
        keyboard.lockGroup(group);
        keyboard.strike({key::leftSuper, key::leftShift, key::s, key::h});
        EXPECT_EQ(program.presses(), (Ids{1, 2})) << "layout " << int{group};
    }
}

TEST_F(X11HotKeysTest, a_pressed_pointer_button_plays_no_part) {
    program.bind(virtualKey::s, commandShift, 1);
    program.bind(virtualKey::h, commandShift, 2);
    keyboard.pressButton(1);
    keyboard.strike({key::leftSuper, key::leftShift, key::s, key::h});
    EXPECT_EQ(program.presses(), (Ids{1, 2}));
}

TEST_F(X11HotKeysTest, a_combination_of_another_program_is_refused) {
    HotKeyProgram other(server);
    other.bind(virtualKey::s, commandShift, 1);
    const auto registration = program.bind(virtualKey::s, commandShift, 2);
    EXPECT_EQ(registration.status, eventHotKeyExistsErr);
    EXPECT_FALSE(registration.ref);

    EXPECT_EQ(program.bind(virtualKey::s, cmdKey, 3).status, noErr);
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    EXPECT_EQ(program.presses(), Ids{});
    EXPECT_EQ(other.presses(), Ids{1});
}

TEST_F(X11HotKeysTest, a_refused_combination_leaves_nothing_half_grabbed) {
    Client other(server.display());
    xcb_grab_key(other.connection(), 0, other.root(), superShift | XCB_MOD_MASK_2, key::s,
                 XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    other.sync();
    EXPECT_EQ(program.bind(virtualKey::s, commandShift, 1).status, eventHotKeyExistsErr);
    EXPECT_TRUE(canBeGrabbed(key::s, superShift));
    EXPECT_TRUE(canBeGrabbed(key::s, superShift | XCB_MOD_MASK_LOCK));
    EXPECT_TRUE(canBeGrabbed(key::s, superShift | XCB_MOD_MASK_2 | XCB_MOD_MASK_LOCK));
    EXPECT_FALSE(canBeGrabbed(key::s, superShift | XCB_MOD_MASK_2));
}

TEST_F(X11HotKeysTest, refusals_never_reach_the_event_loop) {
    HotKeyProgram other(server);
    other.bind(virtualKey::s, commandShift, 1);
    program.bind(virtualKey::s, commandShift, 2);
    program.bind(virtualKey::none, commandShift, 3);
    // The fixture fails on any error among the events.
    EXPECT_EQ(program.presses(), Ids{});
}

TEST_F(X11HotKeysTest, a_combination_of_this_program_is_refused_too_and_stays_its_own) {
    program.bind(virtualKey::s, commandShift, 1);
    EXPECT_EQ(program.bind(virtualKey::s, commandShift, 2).status, eventHotKeyExistsErr);
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    EXPECT_EQ(program.presses(), Ids{1});
}

TEST_F(X11HotKeysTest, a_key_that_the_keyboard_lacks_is_a_bad_parameter) {
    EXPECT_EQ(program.bind(virtualKey::none, commandShift, 1).status, paramErr);
    EXPECT_EQ(program.bind(0xFFFFFFFF, commandShift, 1).status, paramErr);
}

TEST_F(X11HotKeysTest, a_modifier_that_the_keyboard_lacks_is_a_bad_parameter) {
    keyboard.bindModifier(XCB_MAP_INDEX_4, {});
    program.presses();
    EXPECT_EQ(program.bind(virtualKey::s, commandShift, 1).status, paramErr);
    EXPECT_EQ(program.bind(virtualKey::s, shiftKey, 1).status, noErr);
}

TEST_F(X11HotKeysTest, an_unregistered_combination_is_free_again_for_everybody) {
    const auto registration = program.bind(virtualKey::s, commandShift, 1);
    ASSERT_TRUE(registration.ref);
    program.hotKeys->unregisterEventHotKey(*registration.ref);
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    EXPECT_EQ(program.presses(), Ids{});
    for (const unsigned locks : {0U, unsigned{XCB_MOD_MASK_LOCK}, unsigned{XCB_MOD_MASK_2},
                                 unsigned{XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2}}) {
        EXPECT_TRUE(canBeGrabbed(key::s, superShift | locks)) << "locks " << locks;
    }
    EXPECT_EQ(program.bind(virtualKey::s, commandShift, 2).status, noErr);
}

TEST_F(X11HotKeysTest, to_unregister_one_leaves_the_others) {
    const auto registration = program.bind(virtualKey::s, commandShift, 1);
    program.bind(virtualKey::s, cmdKey, 2);
    program.hotKeys->unregisterEventHotKey(*registration.ref);
    program.hotKeys->unregisterEventHotKey(*registration.ref);
    keyboard.strike({key::leftSuper, key::s});
    EXPECT_EQ(program.presses(), Ids{2});
}

TEST_F(X11HotKeysTest, a_program_that_ended_keeps_no_combination) {
    auto other = std::make_unique<HotKeyProgram>(server);
    other->bind(virtualKey::s, commandShift, 1);
    other.reset();
    EXPECT_EQ(program.bind(virtualKey::s, commandShift, 2).status, noErr);
}

TEST_F(X11HotKeysTest, its_end_gives_the_combinations_back_though_the_connection_stays) {
    program.bind(virtualKey::s, commandShift, 1);
    program.hotKeys.reset();
    program.client.sync();
    EXPECT_TRUE(canBeGrabbed(key::s, superShift));
}

TEST_F(X11HotKeysTest, another_program_that_stole_nothing_hears_nothing_of_the_hot_key) {
    Client other(server.display());
    const auto window = xcb_generate_id(other.connection());
    constexpr std::uint32_t keyEvents[] = {XCB_EVENT_MASK_KEY_PRESS};
    xcb_create_window(other.connection(), XCB_COPY_FROM_PARENT, window, other.root(), 0, 0, 9, 9, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      keyEvents);
    xcb_map_window(other.connection(), window);
    xcb_set_input_focus(other.connection(), XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
    other.sync();
    program.bind(virtualKey::s, commandShift, 1);
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    keyboard.strike({key::s});

    std::vector<xcb_keycode_t> typed;
    other.pump([&](const xcb_generic_event_t& event) {
        if (eventType(event) == XCB_KEY_PRESS) {
            typed.push_back(eventAs<xcb_key_press_event_t>(event).detail);
        }
    });
    EXPECT_EQ(typed, (std::vector<xcb_keycode_t>{key::leftSuper, key::leftShift, key::s}));
    EXPECT_EQ(program.presses(), Ids{1});
}

TEST_F(X11HotKeysTest, a_press_that_another_program_made_up_counts_for_nothing) {
    program.bind(virtualKey::s, commandShift, 1);
    xcb_key_press_event_t event{};
    event.response_type = XCB_KEY_PRESS | 0x80;
    event.detail = key::s;
    event.event = program.client.root();
    event.state = superShift;
    EXPECT_FALSE(program.hotKeys->handleEvent(reinterpret_cast<const xcb_generic_event_t&>(event)));
    EXPECT_EQ(program.presses(), Ids{});
}

TEST_F(X11HotKeysTest, what_the_toolkit_asked_to_hear_of_the_keyboard_it_still_hears) {
    Client client(server.display());
    xcb_connection_t* connection = client.connection();
    const XcbOwned<xcb_xkb_use_extension_reply_t> use(
        xcb_xkb_use_extension_reply(connection, xcb_xkb_use_extension(connection, 1, 0), nullptr));
    const auto* extension = xcb_get_extension_data(connection, &xcb_xkb_id);
    xcb_xkb_select_events(connection, XCB_XKB_ID_USE_CORE_KBD, XCB_XKB_EVENT_TYPE_STATE_NOTIFY, 0,
                          XCB_XKB_EVENT_TYPE_STATE_NOTIFY, 0, 0, nullptr);
    X11HotKeys hotKeys(connection, client.root());
    keyboard.lock(XCB_MOD_MASK_LOCK);

    int stateChanges = 0;
    client.pump([&](const xcb_generic_event_t& event) {
        EXPECT_FALSE(hotKeys.handleEvent(event));
        if (eventType(event) == extension->first_event &&
            eventAs<xcb_xkb_state_notify_event_t>(event).xkbType == XCB_XKB_STATE_NOTIFY) {
            ++stateChanges;
        }
    });
    EXPECT_EQ(stateChanges, 1);
}

TEST_F(X11HotKeysTest, the_event_mask_of_the_root_window_is_left_alone) {
    program.bind(virtualKey::s, commandShift, 1);
    const XcbOwned<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
        program.client.connection(),
        xcb_get_window_attributes(program.client.connection(), program.client.root()), nullptr));
    EXPECT_EQ(attributes->your_event_mask, 0U);
}

} // namespace quillon::test
