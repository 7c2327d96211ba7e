#pragma once

#include "desktop/x11/XcbHeaders.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quillon::desktop {

/// Rows of 32-bit pixels with premultiplied alpha, in this machine's byte order.
struct PixelSource {
    const std::uint8_t* firstRow = nullptr;
    std::size_t bytesPerRow = 0;
};

/// Puts small pictures into a window of depth 32, each in one request.
class PixelUpload {
public:
    /// With none, nothing can be put.
    explicit PixelUpload(xcb_connection_t* connection)
        : m_connection(connection) {}
    ~PixelUpload();
    PixelUpload(const PixelUpload&) = delete;
    PixelUpload& operator=(const PixelUpload&) = delete;

    /// Puts the part of `source` that `place` cuts out into the same place of the window. False,
    /// with nothing done, when the part is too large for one request or the server has another idea
    /// of pixels. It is under way once it is flushed.
    bool put(xcb_window_t window, const PixelSource& source, const xcb_rectangle_t& place);
    void flush();

private:
    bool canPut(const xcb_rectangle_t& place) const;

    xcb_connection_t* m_connection;
    xcb_window_t m_window = 0;
    xcb_gcontext_t m_context = 0;
    std::vector<std::uint8_t> m_packed;
};

} // namespace quillon::desktop
