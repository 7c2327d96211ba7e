#include "desktop/tour/Backdrop.h"

#include <array>

namespace quillon::test {

namespace {

constexpr std::uint32_t kDesk = 0x2C3E50;
constexpr std::uint32_t kPaper = 0xFBFBF8;
constexpr std::uint32_t kTitle = 0x34495E;
constexpr std::uint32_t kText = 0xC3C9D0;
constexpr std::array<std::uint32_t, 5> kBars{0x9FB8CC, 0x9FB8CC, 0x5B8DB8, 0x9FB8CC, 0x7FA3C0};
constexpr std::array<int, 5> kBarHeights{140, 210, 330, 180, 260};

} // namespace

Backdrop::Backdrop(const std::string& display)
    : m_connection(display)
    , m_window(xcb_generate_id(m_connection.get()))
    , m_pen(xcb_generate_id(m_connection.get())) {
    const auto& screen = m_connection.screen();
    // Outside of the window manager's hands it stays the lowest.
    const std::uint32_t values[] = {kDesk, 1};
    xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, m_window, screen.root, 0, 0,
                      screen.width_in_pixels, screen.height_in_pixels, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen.root_visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, values);
    xcb_create_gc(m_connection.get(), m_pen, m_window, 0, nullptr);
    const std::uint32_t lowest = XCB_STACK_MODE_BELOW;
    xcb_configure_window(m_connection.get(), m_window, XCB_CONFIG_WINDOW_STACK_MODE, &lowest);
    xcb_map_window(m_connection.get(), m_window);
    paint();
}

void Backdrop::paint() {
    const int width = m_connection.screen().width_in_pixels;
    const int height = m_connection.screen().height_in_pixels;
    const int left = width / 8;
    const int top = height / 9;
    fill(kDesk, 0, 0, width, height);
    fill(kPaper, left, top, width - 2 * left, height - 2 * top);
    fill(kTitle, left + 80, top + 80, 560, 44);
    for (int line = 0; line < 7; ++line) {
        fill(kText, left + 80, top + 190 + line * 52, line % 3 == 2 ? 380 : 520, 16);
    }
    const int ground = top + 640;
    for (std::size_t bar = 0; bar < kBars.size(); ++bar) {
        const int x = left + 760 + static_cast<int>(bar) * 110;
        fill(kBars[bar], x, ground - kBarHeights[bar], 70, kBarHeights[bar]);
    }
    fill(kTitle, left + 740, ground, 560, 4);
    m_connection.synchronise();
}

void Backdrop::fill(std::uint32_t color, int x, int y, int width, int height) {
    xcb_change_gc(m_connection.get(), m_pen, XCB_GC_FOREGROUND, &color);
    const xcb_rectangle_t area{static_cast<std::int16_t>(x), static_cast<std::int16_t>(y),
                               static_cast<std::uint16_t>(width),
                               static_cast<std::uint16_t>(height)};
    xcb_poly_fill_rectangle(m_connection.get(), m_window, m_pen, 1, &area);
}

} // namespace quillon::test
