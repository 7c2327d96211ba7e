#include "desktop/x11/KeyboardMap.h"

#include "desktop/x11/XcbHandles.h"

#include <algorithm>
#include <optional>
#include <span>
#include <string>

namespace quillon::desktop {

namespace {

constexpr xcb_xkb_device_spec_t coreKeyboard = XCB_XKB_ID_USE_CORE_KBD;
constexpr std::uint32_t keyNames = XCB_XKB_NAME_DETAIL_KEY_NAMES;

/// Every connection must say this before its other requests to the extension; to say it again is
/// harmless.
void useExtension(xcb_connection_t* connection) {
    const auto cookie =
        xcb_xkb_use_extension(connection, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION);
    xcb_discard_reply(connection, cookie.sequence);
}

/// The name in a field of four letters, which ends early when it is shorter.
std::string nameIn(const char (&field)[4]) {
    return std::string(field, std::ranges::find(field, '\0'));
}

std::optional<KeyTable> keyTableFrom(const xcb_xkb_get_names_reply_t& reply) {
    xcb_xkb_get_names_value_list_t list{};
    xcb_xkb_get_names_value_list_unpack(
        xcb_xkb_get_names_value_list(&reply), reply.nTypes, reply.indicators, reply.virtualMods,
        reply.groupNames, reply.nKeys, reply.nKeyAliases, reply.nRadioGroups, reply.which, &list);
    KeyTable::Names names;
    if ((reply.which & keyNames) != 0) {
        unsigned keyCode = reply.firstKey;
        for (const auto& key : std::span(list.keyNames, reply.nKeys)) {
            names.emplace(nameIn(key.name), static_cast<xcb_keycode_t>(keyCode++));
        }
    }
    names.erase("");
    return names.empty() ? std::nullopt : std::optional(KeyTable(names));
}

ModifierMap modifierMapFrom(const xcb_get_modifier_mapping_reply_t& modifiers,
                            const xcb_get_keyboard_mapping_reply_t& keyboard,
                            xcb_keycode_t firstKeyCode) {
    const std::span keyCodes(
        xcb_get_modifier_mapping_keycodes(&modifiers),
        static_cast<std::size_t>(xcb_get_modifier_mapping_keycodes_length(&modifiers)));
    const std::span keysyms(
        xcb_get_keyboard_mapping_keysyms(&keyboard),
        static_cast<std::size_t>(xcb_get_keyboard_mapping_keysyms_length(&keyboard)));
    const std::size_t symbolsPerKey = keyboard.keysyms_per_keycode;
    const std::size_t keysPerModifier = modifiers.keycodes_per_modifier;

    ModifierMap::Symbols symbols;
    for (std::size_t modifier = 0; modifier < symbols.size(); ++modifier) {
        for (const xcb_keycode_t keyCode :
             keyCodes.subspan(modifier * keysPerModifier, keysPerModifier)) {
            if (keyCode < firstKeyCode) {
                continue;
            }
            const std::size_t offset = (keyCode - firstKeyCode) * symbolsPerKey;
            if (offset + symbolsPerKey <= keysyms.size()) {
                const auto meanings = keysyms.subspan(offset, symbolsPerKey);
                symbols[modifier].insert(symbols[modifier].end(), meanings.begin(), meanings.end());
            }
        }
    }
    return ModifierMap(symbols);
}

} // namespace

KeyboardMap KeyboardMap::read(xcb_connection_t* connection) {
    const bool hasExtension = keyboardExtensionEvent(connection) != 0;
    const xcb_setup_t& setup = *xcb_get_setup(connection);
    const auto keyCount = static_cast<std::uint8_t>(setup.max_keycode - setup.min_keycode + 1);

    // Everything is asked before the first answer is waited for.
    xcb_xkb_get_names_cookie_t names{};
    xcb_xkb_get_controls_cookie_t controls{};
    if (hasExtension) {
        useExtension(connection);
        names = xcb_xkb_get_names(connection, coreKeyboard, keyNames);
        controls = xcb_xkb_get_controls(connection, coreKeyboard);
    }
    const auto modifiers = xcb_get_modifier_mapping(connection);
    const auto keyboard = xcb_get_keyboard_mapping(connection, setup.min_keycode, keyCount);

    KeyboardMap map;
    if (hasExtension) {
        const XcbOwned<xcb_xkb_get_names_reply_t> namesReply(
            xcb_xkb_get_names_reply(connection, names, nullptr));
        if (namesReply) {
            map.keys = keyTableFrom(*namesReply).value_or(map.keys);
        }
        const XcbOwned<xcb_xkb_get_controls_reply_t> controlsReply(
            xcb_xkb_get_controls_reply(connection, controls, nullptr));
        if (controlsReply) {
            map.repeatTimes = {controlsReply->repeatDelay, controlsReply->repeatInterval};
        }
    }
    const XcbOwned<xcb_get_modifier_mapping_reply_t> modifiersReply(
        xcb_get_modifier_mapping_reply(connection, modifiers, nullptr));
    const XcbOwned<xcb_get_keyboard_mapping_reply_t> keyboardReply(
        xcb_get_keyboard_mapping_reply(connection, keyboard, nullptr));
    if (modifiersReply && keyboardReply) {
        map.modifiers = modifierMapFrom(*modifiersReply, *keyboardReply, setup.min_keycode);
    }
    return map;
}

std::uint8_t keyboardExtensionEvent(xcb_connection_t* connection) {
    const auto* extension = xcb_get_extension_data(connection, &xcb_xkb_id);
    return extension && extension->present != 0 ? extension->first_event : std::uint8_t{0};
}

void listenToKeyboard(xcb_connection_t* connection) {
    if (keyboardExtensionEvent(connection) == 0) {
        return;
    }
    useExtension(connection);
    // Without these flags a key event of a grab tells modifiers that stand in for the layout.
    constexpr std::uint32_t stateAsItIs = XCB_XKB_PER_CLIENT_FLAG_GRABS_USE_XKB_STATE |
                                          XCB_XKB_PER_CLIENT_FLAG_LOOKUP_STATE_WHEN_GRABBED;
    const auto flags =
        xcb_xkb_per_client_flags(connection, coreKeyboard, stateAsItIs, stateAsItIs, 0, 0, 0);
    xcb_discard_reply(connection, flags.sequence);

    constexpr std::uint16_t which =
        XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY |
        XCB_XKB_EVENT_TYPE_CONTROLS_NOTIFY | XCB_XKB_EVENT_TYPE_NAMES_NOTIFY;
    constexpr std::uint16_t mapParts = XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP;

    xcb_xkb_select_events_details_t details{};
    details.affectNewKeyboard = XCB_XKB_NKN_DETAIL_KEYCODES | XCB_XKB_NKN_DETAIL_DEVICE_ID;
    details.newKeyboardDetails = details.affectNewKeyboard;
    details.affectCtrls = XCB_XKB_BOOL_CTRL_REPEAT_KEYS;
    details.ctrlDetails = details.affectCtrls;
    details.affectNames = keyNames;
    details.namesDetails = details.affectNames;
    const auto cookie = xcb_xkb_select_events_aux_checked(connection, coreKeyboard, which, 0, 0,
                                                          mapParts, mapParts, &details);
    xcb_discard_reply(connection, cookie.sequence);
}

bool isKeyboardChange(const xcb_generic_event_t& event, std::uint8_t extensionEvent) {
    const std::uint8_t type = eventType(event);
    if (type == XCB_MAPPING_NOTIFY) {
        return eventAs<xcb_mapping_notify_event_t>(event).request != XCB_MAPPING_POINTER;
    }
    if (extensionEvent == 0 || type != extensionEvent) {
        return false;
    }
    // All events of the extension share one code; which it is stands in the second byte.
    switch (eventAs<xcb_xkb_new_keyboard_notify_event_t>(event).xkbType) {
    case XCB_XKB_NEW_KEYBOARD_NOTIFY:
    case XCB_XKB_MAP_NOTIFY:
    case XCB_XKB_CONTROLS_NOTIFY:
    case XCB_XKB_NAMES_NOTIFY:
        return true;
    default:
        return false;
    }
}

} // namespace quillon::desktop
