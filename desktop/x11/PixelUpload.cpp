#include "desktop/x11/PixelUpload.h"

#include <algorithm>
#include <bit>

namespace quillon::desktop {

namespace {

constexpr std::uint8_t kDepth = 32;
constexpr std::size_t kBytesPerPixel = 4;
/// What a request holds beside its pixels, generously.
constexpr std::size_t kOverhead = 64;

} // namespace

PixelUpload::~PixelUpload() {
    if (m_context != 0) {
        xcb_free_gc(m_connection, m_context);
    }
}

bool PixelUpload::canPut(const xcb_rectangle_t& place) const {
    const auto order = std::endian::native == std::endian::little ? XCB_IMAGE_ORDER_LSB_FIRST
                                                                  : XCB_IMAGE_ORDER_MSB_FIRST;
    const std::size_t bytes = std::size_t{place.width} * place.height * kBytesPerPixel;
    const std::size_t most = std::size_t{xcb_get_setup(m_connection)->maximum_request_length} * 4;
    return xcb_get_setup(m_connection)->image_byte_order == order && bytes + kOverhead <= most;
}

bool PixelUpload::put(xcb_window_t window, const PixelSource& source,
                      const xcb_rectangle_t& place) {
    if (!m_connection || !canPut(place)) {
        return false;
    }
    if (window != m_window) {
        if (m_context != 0) {
            xcb_free_gc(m_connection, m_context);
        }
        m_window = window;
        m_context = xcb_generate_id(m_connection);
        xcb_create_gc(m_connection, m_context, window, 0, nullptr);
    }
    const std::size_t rowLength = place.width * kBytesPerPixel;
    m_packed.resize(rowLength * place.height);
    const std::uint8_t* row = source.firstRow +
                              static_cast<std::size_t>(place.y) * source.bytesPerRow +
                              static_cast<std::size_t>(place.x) * kBytesPerPixel;
    for (std::uint8_t* packed = m_packed.data(); packed != m_packed.data() + m_packed.size();
         packed += rowLength, row += source.bytesPerRow) {
        std::copy_n(row, rowLength, packed);
    }
    xcb_put_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, m_context, place.width,
                  place.height, place.x, place.y, 0, kDepth,
                  static_cast<std::uint32_t>(m_packed.size()), m_packed.data());
    return true;
}

void PixelUpload::flush() {
    if (m_connection) {
        xcb_flush(m_connection);
    }
}

} // namespace quillon::desktop
