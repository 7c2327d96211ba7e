#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace quillon {

/// Whole device pixels from the top left corner of a view. `right` and `bottom` do not belong to
/// it.
struct PixelRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int width() const { return right - left; }
    int height() const { return bottom - top; }
    bool isEmpty() const { return right <= left || bottom <= top; }

    /// The common area; empty when there is none.
    PixelRect intersection(const PixelRect& other) const {
        return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
                std::min(bottom, other.bottom)};
    }

    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

/// Pixels in memory, as rows of 0xAARRGGBB with premultiplied alpha, and where they lie in a view.
template <typename Pixel>
struct PixelGrid {
    PixelRect place;
    /// That of the top left corner of `place`.
    Pixel* firstPixel = nullptr;
    /// From a pixel to the one below it, in pixels.
    std::ptrdiff_t rowLength = 0;

    /// A pixel inside of `place`, in the view's device pixels.
    Pixel* at(int x, int y) const {
        return firstPixel + (y - place.top) * rowLength + (x - place.left);
    }
    /// The pixels that lie in `rect` as well.
    PixelGrid part(const PixelRect& rect) const {
        const PixelRect common = place.intersection(rect);
        return common.isEmpty() ? PixelGrid{}
                                : PixelGrid{common, at(common.left, common.top), rowLength};
    }
    /// To be looked at only.
    operator PixelGrid<const Pixel>() const { return {place, firstPixel, rowLength}; }
};

/// Pixels that are painted on, and those that are only looked at.
using PixelCanvas = PixelGrid<std::uint32_t>;
using PixelPicture = PixelGrid<const std::uint32_t>;

} // namespace quillon
