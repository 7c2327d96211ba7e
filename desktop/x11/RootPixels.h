#pragma once

#include "desktop/x11/PixelLayout.h"
#include "desktop/x11/SharedMemory.h"
#include "desktop/x11/XcbHeaders.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>

namespace quillon::desktop {

/// Reads what a person sees: the pixels of the root window with all that stands on it, without the
/// pointer. Each read waits for the server and brings over the pixels asked for and no others,
/// through shared memory where the server can use it, else along the connection.
class RootPixels {
public:
    /// The connection must outlive this. Its end makes the server let go of the memory.
    RootPixels(xcb_connection_t* connection, xcb_window_t root, const PixelLayout& layout);

    bool usesSharedMemory() const { return m_memory.has_value(); }

    /// `rect` is in device pixels, y downward. Null when it is not all on the screen, or the
    /// connection is broken.
    std::shared_ptr<const PixelRows> read(const xcb_rectangle_t& rect);

private:
    std::shared_ptr<const PixelRows> rowsOf(std::span<const std::uint8_t> bytes,
                                            const xcb_rectangle_t& rect) const;
    /// Makes the memory large enough; false when there is none to be had.
    bool prepareMemory(std::size_t bytes);

    xcb_connection_t* m_connection;
    xcb_window_t m_root;
    PixelLayout m_layout;
    std::optional<SharedMemory> m_memory;
    std::uint32_t m_segment = 0;
};

} // namespace quillon::desktop
