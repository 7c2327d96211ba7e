#include "desktop/x11/HotKeyProgram.h"

namespace quillon::test {

using desktop::X11HotKeys;

TEST_F(X11HotKeysTest, without_a_handler_a_press_is_swallowed) {
    Client client(server.display());
    X11HotKeys hotKeys(client.connection(), client.root());
    hotKeys.registerEventHotKey(virtualKey::s, commandShift, {}, EventTarget::application, 0);
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    int swallowed = 0;
    client.pump([&](const auto& event) { swallowed += hotKeys.handleEvent(event) ? 1 : 0; });
    EXPECT_EQ(swallowed, 2) << "the press and the release";
}

TEST_F(X11HotKeysTest, a_handler_that_was_removed_hears_nothing_more) {
    HotKeyProgram other(server);
    int calls = 0;
    const auto count = [](const HotKeyEvent*, void* userData) -> OSStatus {
        ++*static_cast<int*>(userData);
        return noErr;
    };
    const auto installation =
        other.hotKeys->installEventHandler(EventTarget::application, count, hotKeyPressed, &calls);
    ASSERT_EQ(installation.status, noErr);
    other.bind(virtualKey::s, commandShift, 1);
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    EXPECT_EQ(other.presses(), Ids{}) << "the newer handler takes the press";
    EXPECT_EQ(calls, 1);

    other.hotKeys->removeEventHandler(*installation.ref);
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    EXPECT_EQ(other.presses(), Ids{1});
    EXPECT_EQ(calls, 1);
}

TEST_F(X11HotKeysTest, a_handler_that_another_one_removes_during_a_press_hears_nothing_of_it) {
    const auto removeTheOlder = [](const HotKeyEvent*, void* userData) -> OSStatus {
        auto& hotKeyProgram = *static_cast<HotKeyProgram*>(userData);
        hotKeyProgram.hotKeys->removeEventHandler(*hotKeyProgram.installation.ref);
        return eventNotHandledErr;
    };
    program.hotKeys->installEventHandler(EventTarget::application, removeTheOlder, hotKeyPressed,
                                         &program);
    program.bind(virtualKey::s, commandShift, 1);
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    EXPECT_EQ(program.presses(), Ids{});
}

TEST_F(X11HotKeysTest, a_handler_that_does_not_handle_a_press_leaves_it_to_the_next) {
    const auto decline = [](const HotKeyEvent*, void*) -> OSStatus { return eventNotHandledErr; };
    program.hotKeys->installEventHandler(EventTarget::application, decline, hotKeyPressed, nullptr);
    program.bind(virtualKey::s, commandShift, 1);
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    EXPECT_EQ(program.presses(), Ids{1});
}

TEST_F(X11HotKeysTest, a_handler_for_other_events_hears_nothing_of_a_press) {
    const auto fail = [](const HotKeyEvent*, void*) -> OSStatus {
        ADD_FAILURE();
        return noErr;
    };
    program.hotKeys->installEventHandler(EventTarget::application, fail, {kEventClassKeyboard, 6},
                                         nullptr);
    program.bind(virtualKey::s, commandShift, 1);
    keyboard.strike({key::leftSuper, key::leftShift, key::s});
    EXPECT_EQ(program.presses(), Ids{1});
}

TEST_F(X11HotKeysTest, a_missing_handler_is_a_bad_parameter) {
    const auto installation = program.hotKeys->installEventHandler(EventTarget::application,
                                                                   nullptr, hotKeyPressed, nullptr);
    EXPECT_EQ(installation.status, paramErr);
    EXPECT_FALSE(installation.ref);
}

} // namespace quillon::test
