#pragma once

#include "foundation/Geometry.h"
#include "platform/GraphicsContext.h"
#include "platform/Path.h"
#include "raster/PixelCanvas.h"

#include <cstdint>

namespace quillon {

/// What a line with round caps and joins is drawn with.
struct Ink {
    /// 0xAARRGGBB, premultiplied.
    std::uint32_t color = 0;
    /// In points. No line is thinner than a device pixel.
    CGFloat lineWidth = 1;
    BlendMode blendMode = BlendMode::normal;
};

/// Draws the path as a line with round caps and joins, `scale` device pixels to a point, over what
/// stands on the canvas.
///
/// A pixel is covered by how deep its centre lies in the line: wholly from half a pixel inside of
/// the edge, not at all from half a pixel outside. That depends on the distance to the nearest
/// point of the path and on nothing else, so every part of a line has the pixels of the whole, and
/// a line that crosses itself is no darker there.
void paintInk(const Path& path, const Ink& ink, CGFloat scale, const PixelCanvas& canvas);

} // namespace quillon
