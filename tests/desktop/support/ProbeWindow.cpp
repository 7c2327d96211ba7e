#include "desktop/support/ProbeWindow.h"

namespace quillon::test {

namespace {

std::uint32_t pixelOf(Rgb color) {
    return static_cast<std::uint32_t>(color.red << 16 | color.green << 8 | color.blue);
}

} // namespace

ProbeWindow::ProbeWindow(const std::string& display, const Geometry& geometry, Rgb color)
    : m_connection(display)
    , m_window(xcb_generate_id(m_connection.get())) {
    const std::uint32_t values[] = {pixelOf(color),
                                    XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_KEY_PRESS |
                                        XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_FOCUS_CHANGE};
    xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, m_window, m_connection.root(),
                      static_cast<std::int16_t>(geometry.x), static_cast<std::int16_t>(geometry.y),
                      static_cast<std::uint16_t>(geometry.width),
                      static_cast<std::uint16_t>(geometry.height), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      m_connection.screen().root_visual, XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK,
                      values);
    // The place is the user's own wish, so that the window manager keeps to it; no decoration.
    std::uint32_t sizeHints[18] = {0x1 | 0x4, static_cast<std::uint32_t>(geometry.x),
                                   static_cast<std::uint32_t>(geometry.y)};
    xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, m_window,
                        XCB_ATOM_WM_NORMAL_HINTS, XCB_ATOM_WM_SIZE_HINTS, 32, 18, sizeHints);
    const std::uint32_t noDecorations[5] = {2, 0, 0, 0, 0};
    const auto motif = m_connection.atom("_MOTIF_WM_HINTS");
    xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, m_window, motif, motif, 32, 5,
                        noDecorations);
    xcb_map_window(m_connection.get(), m_window);
    m_connection.synchronise();
    eventually([this] {
        countEvents();
        return m_isExposed;
    });
}

int ProbeWindow::pressCount() {
    countEvents();
    return m_presses;
}

int ProbeWindow::keyCount() {
    countEvents();
    return m_keys;
}

bool ProbeWindow::hasKeyboard() {
    return m_connection.focusedWindow() == m_window;
}

void ProbeWindow::activate() {
    m_connection.askWindowManager("_NET_ACTIVE_WINDOW", m_window, {2});
}

void ProbeWindow::fillScreen() {
    const std::uint32_t add = 1;
    m_connection.askWindowManager("_NET_WM_STATE", m_window,
                                  {add, m_connection.atom("_NET_WM_STATE_FULLSCREEN")});
}

void ProbeWindow::countEvents() {
    while (const XOwned<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())}) {
        switch (event->response_type & 0x7F) {
        case XCB_BUTTON_PRESS:
            ++m_presses;
            break;
        case XCB_KEY_PRESS:
            ++m_keys;
            break;
        case XCB_EXPOSE:
            m_isExposed = true;
            break;
        default:
            break;
        }
    }
}

} // namespace quillon::test
