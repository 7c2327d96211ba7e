#pragma once

#include "desktop/support/XConnection.h"

namespace quillon::test {

/// A quiet page of some other program to present on: a slide with a title, lines of text and a
/// chart, in a window of its own. The bar of the chart that was clicked last stands out.
class Backdrop {
public:
    explicit Backdrop(const std::string& display);

    /// Paints the page anew, with what was clicked by now; the server keeps nothing of it.
    void paint();

private:
    void followClicks();
    xcb_rectangle_t barArea(int bar) const;
    void fill(std::uint32_t color, int x, int y, int width, int height);

    XConnection m_connection;
    xcb_window_t m_window;
    xcb_gcontext_t m_pen;
    int m_chosenBar = 2;
};

} // namespace quillon::test
