#include "desktop/x11/HotKeyProgram.h"

#include <utility>

namespace quillon::test {

namespace {

constexpr std::uint32_t signature = 0x4F52564C;

} // namespace

HotKeyProgram::HotKeyProgram(const VirtualDesktop& desktop)
    : client(desktop.display())
    , hotKeys(std::in_place, client.connection(), client.root()) {
    installation = hotKeys->installEventHandler(EventTarget::application, &HotKeyProgram::handle,
                                                hotKeyPressed, this);
}

HotKeys::Registration HotKeyProgram::bind(std::uint32_t keyCode, std::uint32_t modifiers,
                                          std::uint32_t id) {
    return hotKeys->registerEventHotKey(keyCode, modifiers, {signature, id},
                                        EventTarget::application, 0);
}

Ids HotKeyProgram::presses() {
    client.pump([this](const xcb_generic_event_t& event) { take(event); });
    return std::exchange(m_pressed, {});
}

bool HotKeyProgram::awaitRepeats(int count) {
    const int wanted = m_keyPresses + count;
    return client.pumpUntil([&] { return m_keyPresses >= wanted; },
                            [this](const xcb_generic_event_t& event) { take(event); });
}

OSStatus HotKeyProgram::handle(const HotKeyEvent* event, void* userData) {
    auto& program = *static_cast<HotKeyProgram*>(userData);
    const auto id = program.hotKeys->getEventParameter(*event);
    EXPECT_TRUE(id && id->signature == signature);
    program.m_pressed.push_back(id ? id->id : 0);
    return noErr;
}

void HotKeyProgram::take(const xcb_generic_event_t& event) {
    EXPECT_NE(event.response_type, 0) << "an error reached the event loop";
    if (desktop::eventType(event) == XCB_KEY_PRESS) {
        ++m_keyPresses;
    }
    swallowed += hotKeys->handleEvent(event) ? 1 : 0;
}

bool X11HotKeysTest::canBeGrabbed(xcb_keycode_t keyCode, unsigned modifiers) const {
    const Client other(server.display());
    const auto cookie = xcb_grab_key_checked(other.connection(), 0, other.root(),
                                             static_cast<std::uint16_t>(modifiers), keyCode,
                                             XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    return !desktop::requestError(other.connection(), cookie);
}

} // namespace quillon::test
