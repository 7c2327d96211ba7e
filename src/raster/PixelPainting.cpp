#include "raster/PixelPainting.h"

#include "raster/Blending.h"

#include <algorithm>

namespace quillon {

namespace {

/// Calls `body` with each row, and the length of all.
template <typename Body>
void forEachRow(const PixelCanvas& canvas, Body&& body) {
    const PixelRect& place = canvas.place;
    for (int y = place.top; y < place.bottom; ++y) {
        body(y, canvas.at(place.left, y), place.width());
    }
}

} // namespace

void clearPixels(const PixelCanvas& canvas) {
    forEachRow(canvas,
               [](int /*y*/, std::uint32_t* row, int width) { std::fill_n(row, width, 0); });
}

void fillPixels(const PixelCanvas& canvas, std::uint32_t color, BlendMode mode) {
    forEachRow(canvas, [&](int /*y*/, std::uint32_t* row, int width) {
        std::transform(row, row + width, row,
                       [&](std::uint32_t below) { return blended(color, below, mode); });
    });
}

void drawPixels(const PixelPicture& picture, const PixelCanvas& canvas, std::uint32_t opacity,
                BlendMode mode) {
    const PixelCanvas common = canvas.part(picture.place);
    const bool isOpaque = opacity == opaqueAlpha;
    forEachRow(common, [&](int y, std::uint32_t* row, int width) {
        const std::uint32_t* source = picture.at(common.place.left, y);
        for (std::uint32_t* below = row; below != row + width; ++below, ++source) {
            // Most of a picture is transparent.
            if (*source != 0) {
                *below = blended(isOpaque ? *source : scaled(*source, opacity), *below, mode);
            }
        }
    });
}

} // namespace quillon
