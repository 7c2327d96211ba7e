#pragma once

#include "desktop/x11/HeldKeys.h"
#include "desktop/x11/KeyTable.h"
#include "desktop/x11/ModifierMap.h"
#include "desktop/x11/XcbHeaders.h"

#include <cstdint>

namespace quillon::desktop {

/// What the program needs to know of the keyboard, as the server tells it at one moment.
struct KeyboardMap {
    KeyTable keys = KeyTable::evdev();
    ModifierMap modifiers = ModifierMap::usual();
    HeldKeys::RepeatTimes repeatTimes;

    /// Asks the server in one round trip, besides the look-up of the keyboard extension, which a
    /// connection makes once. Whatever the server does not tell keeps its usual value.
    static KeyboardMap read(xcb_connection_t* connection);

    friend bool operator==(const KeyboardMap&, const KeyboardMap&) = default;
};

/// The first event code of the keyboard extension, or zero when the server has none.
std::uint8_t keyboardExtensionEvent(xcb_connection_t* connection);

/// Asks to hear, on this connection, when anything changes that a `KeyboardMap` tells, and for key
/// events of grabs that tell the modifiers as they are. What else was asked for on the connection
/// stays as it is.
void listenToKeyboard(xcb_connection_t* connection);

/// Whether an event says that a `KeyboardMap` may be out of date.
bool isKeyboardChange(const xcb_generic_event_t& event, std::uint8_t extensionEvent);

} // namespace quillon::desktop
