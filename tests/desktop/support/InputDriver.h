#pragma once

#include "desktop/support/XConnection.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace quillon::test {

/// A place on the screen in device pixels, from the top left.
struct Pixel {
    int x = 0;
    int y = 0;
};

/// The pointer and the keyboard of a desktop, moved as a hand would through the server's test
/// extension. Keys are named by the keysym that they carry without modifiers.
class InputDriver {
public:
    explicit InputDriver(XConnection& connection);

    void moveTo(Pixel place);
    /// Puts the pointer there as a program does, with no device that has moved.
    void warpTo(Pixel place);
    void press(int button = 1);
    void release(int button = 1);
    void click(Pixel place, int button = 1);
    /// Presses at the first place, passes through the others in small steps, and releases at the
    /// last.
    void drag(const std::vector<Pixel>& places, int stepLength = 6);

    /// The server lets so many milliseconds go by first.
    void keyDown(std::string_view key, std::uint32_t after = 0);
    void keyUp(std::string_view key);
    void tap(std::string_view key);
    /// Holds all keys but the last, taps the last, and lets go: {"Super_L", "Shift_L", "s"}.
    void chord(const std::vector<std::string_view>& keys);
    /// Letters, digits and spaces.
    void type(std::string_view text);

    xcb_keycode_t keyCode(std::string_view key) const;

private:
    void fake(std::uint8_t type, std::uint8_t detail, Pixel place = {}, std::uint32_t after = 0);

    XConnection& m_connection;
    Pixel m_place;
};

} // namespace quillon::test
