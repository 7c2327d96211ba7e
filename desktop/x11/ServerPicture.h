#pragma once

#include "desktop/x11/PixelUpload.h"
#include "desktop/x11/XcbHeaders.h"

#include <cstdint>
#include <optional>

namespace quillon::desktop {

/// A picture that lies with the server, of which parts are copied into windows of depth 32. Nothing
/// but the requests travels, so that all that one update copies and fills is there at once: a
/// compositor never shows the half of it.
class ServerPicture {
public:
    /// With none, nothing can be loaded.
    explicit ServerPicture(xcb_connection_t* connection)
        : m_connection(connection) {}
    ~ServerPicture();
    ServerPicture(const ServerPicture&) = delete;
    ServerPicture& operator=(const ServerPicture&) = delete;

    /// Hands over another picture. False when the server has another idea of pixels; then there is
    /// none.
    bool load(xcb_window_t window, const PixelSource& source, std::uint16_t width,
              std::uint16_t height);

    /// Copies what stands at `from` in the picture to `place` in the window, of the size of
    /// `place`. Under way once it is flushed, as is the next.
    void copy(xcb_window_t window, xcb_point_t from, const xcb_rectangle_t& place) const;
    /// Replaces the pixels with a premultiplied one.
    void fill(xcb_window_t window, std::uint32_t pixel, const xcb_rectangle_t& place) const;
    void flush() const { xcb_flush(m_connection); }

private:
    struct Resources {
        xcb_pixmap_t pixmap = 0;
        xcb_gcontext_t context = 0;
    };

    void drop();

    xcb_connection_t* m_connection;
    std::optional<Resources> m_resources;
};

} // namespace quillon::desktop
