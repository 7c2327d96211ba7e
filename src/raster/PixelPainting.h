#pragma once

#include "platform/GraphicsContext.h"
#include "raster/PixelCanvas.h"

#include <cstdint>

/// What is painted pixel by pixel, with no edge inside of one.
namespace quillon {

/// Makes all pixels transparent.
void clearPixels(const PixelCanvas& canvas);

/// Fills the canvas with one premultiplied colour.
void fillPixels(const PixelCanvas& canvas, std::uint32_t color, BlendMode mode);

/// Draws a picture where it lies, as far as the canvas goes. `opacity`, of 255, is multiplied into
/// the picture.
void drawPixels(const PixelPicture& picture, const PixelCanvas& canvas, std::uint32_t opacity,
                BlendMode mode);

} // namespace quillon
