#pragma once

#include "desktop/x11/HeldKeys.h"
#include "desktop/x11/KeyGrab.h"
#include "desktop/x11/KeyboardMap.h"
#include "desktop/x11/RawKeyReleases.h"
#include "platform/HotKeys.h"

#include <cstdint>
#include <map>
#include <optional>

namespace quillon::desktop {

/// System-wide hot keys by passive grabs on the root window.
///
/// The way of one press:
/// 1. the server finds the grab, whichever program has the keyboard, and sends the key events to
///    this connection until the key is up again;
/// 2. the program's event loop hands each event to `handleEvent`;
/// 3. a repeat of a held key is swallowed, a first press is looked up among the registrations;
/// 4. the installed handlers are called at once.
///
/// While a menu of the program is open, the keys come to its window instead, and a press that takes
/// the menu away takes the key's release with it. It is heard all the same (`RawKeyReleases`), so
/// that the next press is not taken for a repeat.
///
/// The way of a new keyboard or layout: the key codes and modifiers are asked for anew, and each
/// registration whose combination came to lie elsewhere is grabbed there. One that cannot be
/// grabbed at the time stays registered, and is tried again with the next change.
///
/// All requests are checked or their errors dropped, and no event mask of a window is touched, so
/// the connection may belong to a toolkit. Nothing runs unless an event is handed in.
class X11HotKeys : public HotKeys {
public:
    /// The connection must outlive this.
    X11HotKeys(xcb_connection_t* connection, xcb_window_t root);
    X11HotKeys(const X11HotKeys&) = delete;
    X11HotKeys& operator=(const X11HotKeys&) = delete;

    EventTarget getApplicationEventTarget() const override { return EventTarget::application; }
    Registration registerEventHotKey(std::uint32_t keyCode, std::uint32_t modifiers,
                                     EventHotKeyID hotKeyID, EventTarget target,
                                     std::uint32_t options) override;
    void unregisterEventHotKey(EventHotKeyRef ref) override;
    Installation installEventHandler(EventTarget target, EventHandler handler, EventTypeSpec type,
                                     void* userData) override;
    void removeEventHandler(EventHandlerRef ref) override;
    std::optional<EventHotKeyID> getEventParameter(const HotKeyEvent& event) const override;

    /// To be given every event of the connection, in order. True when the event was meant for a
    /// hot key and should go no further.
    bool handleEvent(const xcb_generic_event_t& event);

    /// The keyboard as it was last read.
    const KeyboardMap& keyboardMap() const { return m_keyboard; }

private:
    struct HotKey {
        EventHotKeyID id;
        std::uint32_t keyCode = 0;
        std::uint32_t modifiers = 0;
        /// Missing while the combination cannot be grabbed.
        std::optional<KeyGrab> grab;
    };
    struct Handler {
        EventHandler function = nullptr;
        EventTypeSpec type;
        void* userData = nullptr;
    };

    bool handleKeyPress(const xcb_key_press_event_t& event);
    void readKeyboard();
    void regrab();
    std::optional<KeyCombination> combinationOf(const HotKey& hotKey) const;
    const HotKey* holderOf(KeyCombination combination) const;
    void dispatch(EventHotKeyID id);

    xcb_connection_t* m_connection;
    xcb_window_t m_root;
    std::uint8_t m_extensionEvent;

    KeyboardMap m_keyboard;
    /// The sequence number at which the keyboard was read: an event from before it tells nothing
    /// new.
    std::uint32_t m_keyboardReadAt = 0;
    HeldKeys m_heldKeys;
    RawKeyReleases m_rawReleases;

    std::map<EventHotKeyRef, HotKey> m_hotKeys;
    std::map<EventHandlerRef, Handler> m_handlers;
    std::uint64_t m_lastRef = 0;
};

} // namespace quillon::desktop
