#include "desktop/x11/X11HotKeys.h"

#include "desktop/x11/XcbHandles.h"

#include <utility>
#include <vector>

namespace quillon::desktop {

namespace {

/// The bits of a key event's state that are modifiers; the others are pointer buttons and the
/// layout.
constexpr std::uint16_t modifierBits = 0xFF;

class HotKeyPress : public HotKeyEvent {
public:
    explicit HotKeyPress(EventHotKeyID hotKeyID)
        : id(hotKeyID) {}

    const EventHotKeyID id;
};

} // namespace

X11HotKeys::X11HotKeys(xcb_connection_t* connection, xcb_window_t root)
    : m_connection(connection)
    , m_root(root)
    , m_extensionEvent(keyboardExtensionEvent(connection))
    , m_rawReleases(connection, root) {
    // Asked for before the first reading, so that no change falls in between.
    listenToKeyboard(connection);
    readKeyboard();
}

HotKeys::Registration X11HotKeys::registerEventHotKey(std::uint32_t keyCode,
                                                      std::uint32_t modifiers,
                                                      EventHotKeyID hotKeyID, EventTarget,
                                                      std::uint32_t) {
    HotKey hotKey{hotKeyID, keyCode, modifiers, std::nullopt};
    const auto combination = combinationOf(hotKey);
    if (!combination) {
        return {paramErr, std::nullopt};
    }
    // The server would let one program grab the same combination twice.
    if (holderOf(*combination)) {
        return {eventHotKeyExistsErr, std::nullopt};
    }
    hotKey.grab.emplace(m_connection, m_root, *combination, m_keyboard.modifiers.lockStates());
    const OSStatus status = hotKey.grab->settle();
    if (status != noErr) {
        return {status, std::nullopt};
    }
    const EventHotKeyRef ref{++m_lastRef};
    m_hotKeys.emplace(ref, std::move(hotKey));
    return {noErr, ref};
}

void X11HotKeys::unregisterEventHotKey(EventHotKeyRef ref) {
    m_hotKeys.erase(ref);
}

HotKeys::Installation X11HotKeys::installEventHandler(EventTarget, EventHandler handler,
                                                      EventTypeSpec type, void* userData) {
    if (!handler) {
        return {paramErr, std::nullopt};
    }
    const EventHandlerRef ref{++m_lastRef};
    m_handlers.emplace(ref, Handler{handler, type, userData});
    return {noErr, ref};
}

void X11HotKeys::removeEventHandler(EventHandlerRef ref) {
    m_handlers.erase(ref);
}

std::optional<EventHotKeyID> X11HotKeys::getEventParameter(const HotKeyEvent& event) const {
    const auto* press = dynamic_cast<const HotKeyPress*>(&event);
    return press ? std::optional(press->id) : std::nullopt;
}

bool X11HotKeys::handleEvent(const xcb_generic_event_t& event) {
    if (isKeyboardChange(event, m_extensionEvent)) {
        // A change comes as a burst of events. One that was under way when the keyboard was last
        // read is already accounted for.
        if (static_cast<std::int32_t>(event.full_sequence - m_keyboardReadAt) >= 0) {
            readKeyboard();
            regrab();
        }
        return false;
    }
    if (wasSentByAClient(event)) {
        return false;
    }
    if (const auto release = m_rawReleases.take(event)) {
        m_heldKeys.released(release->keyCode, release->time);
        return true;
    }
    switch (eventType(event)) {
    case XCB_KEY_PRESS:
        return handleKeyPress(eventAs<xcb_key_press_event_t>(event));
    case XCB_KEY_RELEASE: {
        const auto& release = eventAs<xcb_key_release_event_t>(event);
        m_heldKeys.released(release.detail, release.time);
        return release.event == m_root;
    }
    default:
        return false;
    }
}

bool X11HotKeys::handleKeyPress(const xcb_key_press_event_t& event) {
    // The keys of the program's own windows count too: a shortcut may be registered while the keys
    // that were pressed to record it are still down.
    const HeldKeys::Press press = m_heldKeys.pressed(event.detail, event.time);
    const auto modifiers =
        static_cast<std::uint16_t>(event.state & modifierBits & ~m_keyboard.modifiers.locks());
    const HotKey* hotKey = holderOf({event.detail, modifiers});
    // While the program has grabbed the keyboard as a whole, as for a menu, the server heeds no
    // other grab, and sends even the key of a hot key to the window that grabbed.
    if (event.event != m_root && !hotKey) {
        return false;
    }
    if (event.event != m_root) {
        // It may take away the menu, and with it the grab that would bring the release.
        m_rawReleases.await(event.detail);
    }
    if (press == HeldKeys::Press::first && hotKey) {
        dispatch(hotKey->id);
    }
    return true;
}

void X11HotKeys::readKeyboard() {
    const auto mark = xcb_no_operation(m_connection);
    m_keyboardReadAt = mark.sequence;
    m_keyboard = KeyboardMap::read(m_connection);
    m_heldKeys.setRepeatTimes(m_keyboard.repeatTimes);
}

void X11HotKeys::regrab() {
    const auto lockStates = m_keyboard.modifiers.lockStates();
    std::vector<std::pair<HotKey*, KeyCombination>> moved;
    for (auto& [ref, hotKey] : m_hotKeys) {
        const auto combination = combinationOf(hotKey);
        if (hotKey.grab && combination && hotKey.grab->covers(*combination, lockStates)) {
            continue;
        }
        hotKey.grab.reset();
        if (combination) {
            moved.emplace_back(&hotKey, *combination);
        }
    }
    for (const auto& [hotKey, combination] : moved) {
        if (!holderOf(combination)) {
            hotKey->grab.emplace(m_connection, m_root, combination, lockStates);
        }
    }
    for (const auto& [hotKey, combination] : moved) {
        if (hotKey->grab && hotKey->grab->settle() != noErr) {
            hotKey->grab.reset();
        }
    }
}

std::optional<KeyCombination> X11HotKeys::combinationOf(const HotKey& hotKey) const {
    const auto keyCode = m_keyboard.keys.keyCode(hotKey.keyCode);
    const auto modifiers = m_keyboard.modifiers.state(hotKey.modifiers);
    if (!keyCode || !modifiers) {
        return std::nullopt;
    }
    return KeyCombination{*keyCode, *modifiers};
}

const X11HotKeys::HotKey* X11HotKeys::holderOf(KeyCombination combination) const {
    for (const auto& [ref, hotKey] : m_hotKeys) {
        if (hotKey.grab && hotKey.grab->combination() == combination) {
            return &hotKey;
        }
    }
    return nullptr;
}

void X11HotKeys::dispatch(EventHotKeyID id) {
    const HotKeyPress press(id);
    // A handler may remove itself or another one, which then is not called any more.
    const auto handlers = m_handlers;
    for (auto entry = handlers.rbegin(); entry != handlers.rend(); ++entry) {
        const auto& [ref, handler] = *entry;
        if (handler.type == EventTypeSpec{kEventClassKeyboard, kEventHotKeyPressed} &&
            m_handlers.contains(ref) &&
            handler.function(&press, handler.userData) != eventNotHandledErr) {
            return;
        }
    }
}

} // namespace quillon::desktop
