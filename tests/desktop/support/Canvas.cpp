#include "desktop/support/Canvas.h"

namespace quillon::test {

namespace {

xcb_rectangle_t rectangle(const Canvas::Frame& frame) {
    return {static_cast<std::int16_t>(frame.x), static_cast<std::int16_t>(frame.y),
            static_cast<std::uint16_t>(frame.width), static_cast<std::uint16_t>(frame.height)};
}

} // namespace

Canvas::Canvas(const std::string& display, const Frame& frame)
    : m_connection(display)
    , m_frame(frame)
    , m_window(xcb_generate_id(m_connection.get()))
    , m_picture(xcb_generate_id(m_connection.get()))
    , m_pen(xcb_generate_id(m_connection.get())) {
    const xcb_rectangle_t place = rectangle(frame);
    const std::uint32_t isUnmanaged = 1;
    xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, m_window, m_connection.root(),
                      place.x, place.y, place.width, place.height, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &isUnmanaged);
    xcb_create_pixmap(m_connection.get(), m_connection.screen().root_depth, m_picture, m_window,
                      place.width, place.height);
    xcb_create_gc(m_connection.get(), m_pen, m_picture, 0, nullptr);
    fill({0, 0, frame.width, frame.height}, m_connection.screen().black_pixel);
    xcb_map_window(m_connection.get(), m_window);
    m_connection.synchronise();
}

void Canvas::fill(const Frame& part, std::uint32_t color) {
    xcb_change_gc(m_connection.get(), m_pen, XCB_GC_FOREGROUND, &color);
    const xcb_rectangle_t place = rectangle(part);
    xcb_poly_fill_rectangle(m_connection.get(), m_picture, m_pen, 1, &place);
    show(part);
}

void Canvas::show(const Frame& part) {
    xcb_change_window_attributes(m_connection.get(), m_window, XCB_CW_BACK_PIXMAP, &m_picture);
    const xcb_rectangle_t place = rectangle(part);
    xcb_clear_area(m_connection.get(), 0, m_window, place.x, place.y, place.width, place.height);
    m_connection.synchronise();
}

void Canvas::moveTo(int x, int y) {
    const std::uint32_t place[] = {static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y)};
    xcb_configure_window(m_connection.get(), m_window, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y,
                         place);
    m_connection.synchronise();
}

std::uint32_t Canvas::patternAt(int x, int y) {
    return static_cast<std::uint32_t>(0x400000 | (y & 0xFF) << 8 | (x & 0xFF));
}

void Canvas::fillWithPattern() {
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < m_frame.height; ++y) {
        for (int x = 0; x < m_frame.width; ++x) {
            pixels.push_back(patternAt(x, y));
        }
    }
    const xcb_rectangle_t size = rectangle(m_frame);
    xcb_put_image(m_connection.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, m_picture, m_pen, size.width,
                  size.height, 0, 0, 0, m_connection.screen().root_depth,
                  static_cast<std::uint32_t>(pixels.size() * 4),
                  reinterpret_cast<const std::uint8_t*>(pixels.data()));
    show({0, 0, m_frame.width, m_frame.height});
}

} // namespace quillon::test
