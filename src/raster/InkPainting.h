#pragma once

#include "foundation/Geometry.h"
#include "platform/GraphicsContext.h"
#include "raster/Flattening.h"
#include "raster/PixelCanvas.h"

#include <cstdint>
#include <vector>

namespace quillon {

/// What a line with round caps and joins is drawn with.
struct Ink {
    /// 0xAARRGGBB, premultiplied.
    std::uint32_t color = 0;
    /// In device pixels. No line is thinner than one.
    CGFloat lineWidth = 1;
    BlendMode blendMode = BlendMode::normal;
};

/// Draws lines with round caps and joins over what stands on the canvas. All of them are one
/// figure: where they meet or cross, the ink is no darker.
///
/// A pixel is covered by how deep its centre lies in the figure: wholly from half a pixel inside of
/// the edge, not at all from half a pixel outside. That depends on the distance to the nearest
/// line and on nothing else, so every part of a figure has the pixels of the whole.
void paintInk(const std::vector<LinePiece>& lines, const Ink& ink, const PixelCanvas& canvas);

} // namespace quillon
