#include "desktop/support/InputDriver.h"

#include <xcb/xtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <map>
#include <stdexcept>
#include <string>

namespace quillon::test {

namespace {

std::uint32_t keysym(std::string_view key) {
    static const std::map<std::string_view, std::uint32_t> names{
        {"Super_L", 0xFFEB},  {"Shift_L", 0xFFE1},   {"Control_L", 0xFFE3},   {"Alt_L", 0xFFE9},
        {"Num_Lock", 0xFF7F}, {"Caps_Lock", 0xFFE5}, {"Scroll_Lock", 0xFF14}, {"Return", 0xFF0D},
        {"Escape", 0xFF1B},   {"Tab", 0xFF09},       {"BackSpace", 0xFF08},   {"Down", 0xFF54},
        {"Up", 0xFF52},       {"Left", 0xFF51},      {"Right", 0xFF53},       {"space", 0x20},
        {"comma", 0x2C},      {"F10", 0xFFC7},
    };
    if (const auto name = names.find(key); name != names.end()) {
        return name->second;
    }
    if (key.size() == 1) {
        return static_cast<unsigned char>(key.front());
    }
    throw std::runtime_error("no key is named " + std::string(key));
}

} // namespace

InputDriver::InputDriver(XConnection& connection)
    : m_connection(connection) {}

void InputDriver::moveTo(Pixel place) {
    m_place = place;
    fake(XCB_MOTION_NOTIFY, 0, place);
}

void InputDriver::warpTo(Pixel place) {
    m_place = place;
    xcb_warp_pointer(m_connection.get(), XCB_NONE, m_connection.root(), 0, 0, 0, 0,
                     static_cast<std::int16_t>(place.x), static_cast<std::int16_t>(place.y));
    m_connection.synchronise();
}

void InputDriver::press(int button) {
    fake(XCB_BUTTON_PRESS, static_cast<std::uint8_t>(button));
}

void InputDriver::release(int button) {
    fake(XCB_BUTTON_RELEASE, static_cast<std::uint8_t>(button));
}

void InputDriver::click(Pixel place, int button) {
    moveTo(place);
    press(button);
    release(button);
}

void InputDriver::drag(const std::vector<Pixel>& places, int stepLength) {
    moveTo(places.front());
    press();
    for (const Pixel& target : places) {
        const Pixel from = m_place;
        const double length = std::hypot(target.x - from.x, target.y - from.y);
        const int steps = std::max(1, static_cast<int>(length / stepLength));
        for (int step = 1; step <= steps; ++step) {
            const double part = static_cast<double>(step) / steps;
            moveTo({from.x + static_cast<int>(std::lround((target.x - from.x) * part)),
                    from.y + static_cast<int>(std::lround((target.y - from.y) * part))});
        }
    }
    release();
}

void InputDriver::keyDown(std::string_view key, std::uint32_t after) {
    fake(XCB_KEY_PRESS, keyCode(key), {}, after);
}

void InputDriver::keyUp(std::string_view key) {
    fake(XCB_KEY_RELEASE, keyCode(key));
}

void InputDriver::tap(std::string_view key) {
    keyDown(key);
    keyUp(key);
}

void InputDriver::chord(const std::vector<std::string_view>& keys) {
    for (const auto& key : keys) {
        keyDown(key);
    }
    std::for_each(keys.rbegin(), keys.rend(), [this](std::string_view key) { keyUp(key); });
}

void InputDriver::type(std::string_view text) {
    for (const char& character : text) {
        const auto isCapital = std::isupper(static_cast<unsigned char>(character)) != 0;
        const char small = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
        const std::string_view key(&small, 1);
        if (isCapital) {
            chord({"Shift_L", key});
        } else {
            tap(key);
        }
    }
}

xcb_keycode_t InputDriver::keyCode(std::string_view key) const {
    const xcb_setup_t* setup = xcb_get_setup(m_connection.get());
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const XOwned<xcb_get_keyboard_mapping_reply_t> mapping(xcb_get_keyboard_mapping_reply(
        m_connection.get(), xcb_get_keyboard_mapping(m_connection.get(), setup->min_keycode, count),
        nullptr));
    const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
    const std::uint32_t wanted = keysym(key);
    for (int index = 0; index < count; ++index) {
        if (symbols[index * mapping->keysyms_per_keycode] == wanted) {
            return static_cast<xcb_keycode_t>(setup->min_keycode + index);
        }
    }
    throw std::runtime_error("the keyboard has no key " + std::string(key));
}

void InputDriver::fake(std::uint8_t type, std::uint8_t detail, Pixel place, std::uint32_t after) {
    xcb_test_fake_input(m_connection.get(), type, detail, after, m_connection.root(),
                        static_cast<std::int16_t>(place.x), static_cast<std::int16_t>(place.y), 0);
    m_connection.synchronise();
}

} // namespace quillon::test
