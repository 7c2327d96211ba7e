#include "desktop/tour/Backdrop.h"

#include <array>
#include <cstring>

namespace quillon::test {

namespace {

constexpr std::uint32_t kDesk = 0x2C3E50;
constexpr std::uint32_t kPaper = 0xFBFBF8;
constexpr std::uint32_t kTitle = 0x34495E;
constexpr std::uint32_t kText = 0xC3C9D0;
/// The foot of the chart, from the top of the page.
constexpr int kGround = 640;
constexpr std::uint32_t kBar = 0x9FB8CC;
constexpr std::uint32_t kChosenBar = 0x4A86B8;
constexpr int kBarCount = 5;
constexpr std::array<int, kBarCount> kBarHeights{140, 210, 330, 180, 260};

} // namespace

Backdrop::Backdrop(const std::string& display)
    : m_connection(display)
    , m_window(xcb_generate_id(m_connection.get()))
    , m_pen(xcb_generate_id(m_connection.get())) {
    const auto& screen = m_connection.screen();
    // Outside of the window manager's hands it stays the lowest.
    const std::uint32_t values[] = {kDesk, 1, XCB_EVENT_MASK_BUTTON_PRESS};
    xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, m_window, screen.root, 0, 0,
                      screen.width_in_pixels, screen.height_in_pixels, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen.root_visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
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
    followClicks();
    for (int bar = 0; bar < kBarCount; ++bar) {
        const xcb_rectangle_t area = barArea(bar);
        fill(bar == m_chosenBar ? kChosenBar : kBar, area.x, area.y, area.width, area.height);
    }
    fill(kTitle, left + 740, top + kGround, 560, 4);
    m_connection.synchronise();
}

void Backdrop::followClicks() {
    while (const XOwned<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())}) {
        if ((event->response_type & 0x7F) != XCB_BUTTON_PRESS) {
            continue;
        }
        xcb_button_press_event_t press{};
        std::memcpy(&press, event.get(), sizeof press);
        for (int bar = 0; bar < kBarCount; ++bar) {
            const xcb_rectangle_t area = barArea(bar);
            if (press.event_x >= area.x && press.event_x < area.x + area.width &&
                press.event_y >= area.y && press.event_y < area.y + area.height) {
                m_chosenBar = bar;
            }
        }
    }
}

xcb_rectangle_t Backdrop::barArea(int bar) const {
    const auto& screen = m_connection.screen();
    const int height = kBarHeights.at(static_cast<std::size_t>(bar));
    const int x = screen.width_in_pixels / 8 + 760 + bar * 110;
    const int y = screen.height_in_pixels / 9 + kGround - height;
    return {static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 70,
            static_cast<std::uint16_t>(height)};
}

void Backdrop::fill(std::uint32_t color, int x, int y, int width, int height) {
    xcb_change_gc(m_connection.get(), m_pen, XCB_GC_FOREGROUND, &color);
    const xcb_rectangle_t area{static_cast<std::int16_t>(x), static_cast<std::int16_t>(y),
                               static_cast<std::uint16_t>(width),
                               static_cast<std::uint16_t>(height)};
    xcb_poly_fill_rectangle(m_connection.get(), m_window, m_pen, 1, &area);
}

} // namespace quillon::test
