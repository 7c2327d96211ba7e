#include "desktop/x11/KeyGrab.h"

#include "desktop/x11/XcbHandles.h"

#include <utility>

namespace quillon::desktop {

KeyGrab::KeyGrab(xcb_connection_t* connection, xcb_window_t root, KeyCombination combination,
                 const std::vector<std::uint16_t>& lockStates)
    : m_connection(connection)
    , m_root(root)
    , m_combination(combination)
    , m_lockStates(lockStates) {
    constexpr std::uint8_t toTheGrabberAlone = 0;
    for (const std::uint16_t locks : m_lockStates) {
        m_unsettled.push_back(xcb_grab_key_checked(
            m_connection, toTheGrabberAlone, m_root, m_combination.modifiers | locks,
            m_combination.keyCode, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    }
}

KeyGrab::~KeyGrab() {
    release();
}

KeyGrab::KeyGrab(KeyGrab&& other) noexcept
    : m_connection(std::exchange(other.m_connection, nullptr))
    , m_root(other.m_root)
    , m_combination(other.m_combination)
    , m_lockStates(std::move(other.m_lockStates))
    , m_unsettled(std::move(other.m_unsettled)) {}

KeyGrab& KeyGrab::operator=(KeyGrab&& other) noexcept {
    if (this != &other) {
        release();
        m_connection = std::exchange(other.m_connection, nullptr);
        m_root = other.m_root;
        m_combination = other.m_combination;
        m_lockStates = std::move(other.m_lockStates);
        m_unsettled = std::move(other.m_unsettled);
    }
    return *this;
}

bool KeyGrab::covers(KeyCombination combination,
                     const std::vector<std::uint16_t>& lockStates) const {
    return m_combination == combination && m_lockStates == lockStates;
}

OSStatus KeyGrab::settle() {
    OSStatus status = noErr;
    for (const xcb_void_cookie_t cookie : std::exchange(m_unsettled, {})) {
        if (const auto error = requestError(m_connection, cookie)) {
            status = error->error_code == XCB_ACCESS ? eventHotKeyExistsErr : paramErr;
        }
    }
    return status;
}

void KeyGrab::release() {
    if (!m_connection) {
        return;
    }
    for (const xcb_void_cookie_t cookie : m_unsettled) {
        xcb_discard_reply(m_connection, cookie.sequence);
    }
    // To give back what was refused does no harm: the server gives back only this program's own.
    for (const std::uint16_t locks : m_lockStates) {
        const auto cookie = xcb_ungrab_key_checked(m_connection, m_combination.keyCode, m_root,
                                                   m_combination.modifiers | locks);
        xcb_discard_reply(m_connection, cookie.sequence);
    }
    xcb_flush(m_connection);
}

} // namespace quillon::desktop
