#pragma once

#include "foundation/Geometry.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace quillon {

/// A rectangle of opaque pixels in memory: rows from the top, each pixel as 0xFFRRGGBB, which is
/// BGRA in the memory of a little-endian machine.
struct PixelRows {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;

    friend bool operator==(const PixelRows&, const PixelRows&) = default;
};

/// A picture that has its pixels. Copies share them; equal means that the same is to be seen.
struct CGImage {
    /// Never null.
    std::shared_ptr<const PixelRows> rows = std::make_shared<PixelRows>();
    /// Which part of the rows is the picture: in pixels from their top left corner, y downward. Its
    /// edges may fall inside of pixels.
    CGRect part;

    friend bool operator==(const CGImage& a, const CGImage& b) {
        return a.part == b.part && (a.rows == b.rows || *a.rows == *b.rows);
    }
};

/// A picture with the size at which it is to be seen.
struct NSImage {
    CGImage image;
    CGSize size;

    friend bool operator==(const NSImage&, const NSImage&) = default;
};

} // namespace quillon
