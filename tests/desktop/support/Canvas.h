#pragma once

#include "desktop/support/XConnection.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quillon::test {

/// A bare window of a program that draws: no window manager moves it, and it starts black.
class Canvas {
public:
    struct Frame {
        int x = 0;
        int y = 0;
        int width = 0;
        int height = 0;
    };

    /// Stands on the screen when the constructor returns.
    Canvas(const std::string& display, const Frame& frame);

    /// Returns once the server has carried it out. Coordinates are those of the window, y downward;
    /// a colour is 0xRRGGBB.
    void fill(const Frame& part, std::uint32_t color);
    void moveTo(int x, int y);

    /// A colour for each place that no other place of a small window has.
    static std::uint32_t patternAt(int x, int y);
    void fillWithPattern();

private:
    /// Puts that part of the picture on the screen.
    void show(const Frame& part);

    XConnection m_connection;
    Frame m_frame;
    xcb_window_t m_window;
    /// The window's background, so that what is drawn outlasts a compositor that comes or goes.
    xcb_pixmap_t m_picture;
    xcb_gcontext_t m_pen;
};

} // namespace quillon::test
