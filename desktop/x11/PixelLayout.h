#pragma once

#include "desktop/x11/XcbHeaders.h"
#include "platform/CGImage.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace quillon::desktop {

/// How a server lays out the pixels of a window in the images that it hands out.
struct PixelLayout {
    std::size_t bytesPerPixel = 4;
    /// Every row begins at a multiple of this many bytes.
    std::size_t rowAlignment = 4;
    std::endian byteOrder = std::endian::little;
    /// Which bits of a pixel are red, green and blue; each of them in one piece.
    std::array<std::uint32_t, 3> masks{0xFF0000, 0x00FF00, 0x0000FF};

    std::size_t bytesPerRow(int width) const;

    /// The rows of an image of that size, which `bytes` holds whole.
    PixelRows convert(std::span<const std::uint8_t> bytes, int width, int height) const;
};

/// The layout of the first screen's root window; nothing when its pixels are no colours of their
/// own, but places in a table.
std::optional<PixelLayout> rootPixelLayout(const xcb_setup_t& setup);

} // namespace quillon::desktop
