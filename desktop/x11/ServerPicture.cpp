#include "desktop/x11/ServerPicture.h"

#include <algorithm>

namespace quillon::desktop {

namespace {

constexpr std::uint8_t kDepth = 32;
constexpr int kBytesPerPixel = 4;
/// What every server takes in one request, and not much less.
constexpr int kBytesAtOnce = 128 * 1024;

} // namespace

ServerPicture::~ServerPicture() {
    drop();
}

void ServerPicture::drop() {
    if (m_resources) {
        xcb_free_gc(m_connection, m_resources->context);
        xcb_free_pixmap(m_connection, m_resources->pixmap);
        m_resources.reset();
    }
}

bool ServerPicture::load(xcb_window_t window, const PixelSource& source, std::uint16_t width,
                         std::uint16_t height) {
    drop();
    if (!m_connection || width == 0 || height == 0) {
        return false;
    }
    m_resources = Resources{xcb_generate_id(m_connection), xcb_generate_id(m_connection)};
    const auto [pixmap, context] = *m_resources;
    xcb_create_pixmap(m_connection, kDepth, pixmap, window, width, height);
    // A copy from a picture that is all there has nothing to tell.
    const std::uint32_t exposures = 0;
    xcb_create_gc(m_connection, context, pixmap, XCB_GC_GRAPHICS_EXPOSURES, &exposures);

    PixelUpload upload(m_connection);
    const int rows = std::max(1, kBytesAtOnce / (width * kBytesPerPixel));
    for (int top = 0; top < height; top += rows) {
        const auto count = static_cast<std::uint16_t>(std::min(rows, height - top));
        if (!upload.put(pixmap, source, {0, static_cast<std::int16_t>(top), width, count})) {
            drop();
            return false;
        }
    }
    return true;
}

void ServerPicture::copy(xcb_window_t window, xcb_point_t from,
                         const xcb_rectangle_t& place) const {
    if (m_resources) {
        xcb_copy_area(m_connection, m_resources->pixmap, window, m_resources->context, from.x,
                      from.y, place.x, place.y, place.width, place.height);
    }
}

void ServerPicture::fill(xcb_window_t window, std::uint32_t pixel,
                         const xcb_rectangle_t& place) const {
    if (m_resources) {
        xcb_change_gc(m_connection, m_resources->context, XCB_GC_FOREGROUND, &pixel);
        // One rectangle a request: the server tells a compositor of the bounds of all in one.
        xcb_poly_fill_rectangle(m_connection, window, m_resources->context, 1, &place);
    }
}

} // namespace quillon::desktop
