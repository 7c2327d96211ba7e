#pragma once

#include "foundation/Color.h"
#include "platform/GraphicsContext.h"

#include <algorithm>
#include <cstdint>

/// Single pixels, each 0xAARRGGBB with premultiplied alpha. The formulas are those of Porter and
/// Duff (Compositing Digital Images, 1984); products are divided by 255 and rounded.
namespace quillon {

inline constexpr std::uint32_t opaqueAlpha = 255;

/// All four parts of a pixel, times `factor` of 255.
inline std::uint32_t scaled(std::uint32_t pixel, std::uint32_t factor) {
    // Two parts at a time, each with room for its product. With y = x + 128 the rounded x / 255 is
    // (y + y / 256) / 256.
    constexpr std::uint32_t mask = 0x00FF00FF;
    constexpr std::uint32_t half = 0x00800080;
    const auto rounded = [](std::uint32_t products) {
        products += half;
        return products + ((products >> 8) & mask);
    };
    const std::uint32_t low = (rounded((pixel & mask) * factor) >> 8) & mask;
    const std::uint32_t high = rounded(((pixel >> 8) & mask) * factor) & ~mask;
    return low | high;
}

/// What comes of drawing a pixel on another one.
inline std::uint32_t blended(std::uint32_t source, std::uint32_t below, BlendMode mode) {
    if (mode == BlendMode::normal) {
        const std::uint32_t alpha = source >> 24;
        return alpha == opaqueAlpha ? source : source + scaled(below, opaqueAlpha - alpha);
    }
    std::uint32_t sum = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        sum |= std::min(((source >> shift) & 0xFF) + ((below >> shift) & 0xFF), opaqueAlpha)
               << shift;
    }
    return sum;
}

/// `opacity` from 0 to 1, multiplied into the colour. Components outside of 0 to 1 are clamped,
/// since nothing brighter can be painted.
std::uint32_t premultipliedPixel(const Color& color, double opacity);

} // namespace quillon
