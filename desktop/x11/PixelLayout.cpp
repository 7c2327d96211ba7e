#include "desktop/x11/PixelLayout.h"

#include <cstring>

namespace quillon::desktop {

namespace {

constexpr std::uint32_t opaque = 0xFF000000;
constexpr std::array<std::uint32_t, 3> usualMasks{0xFF0000, 0x00FF00, 0x0000FF};

std::uint32_t pixelAt(const std::uint8_t* bytes, std::size_t count, std::endian order) {
    std::uint32_t pixel = 0;
    for (std::size_t index = 0; index < count; ++index) {
        const std::size_t place = order == std::endian::little ? count - 1 - index : index;
        pixel = pixel << 8 | bytes[place];
    }
    return pixel;
}

/// A part of a pixel, brought to the range from 0 to 255.
std::uint32_t component(std::uint32_t pixel, std::uint32_t mask) {
    if (mask == 0) {
        return 0;
    }
    const int shift = std::countr_zero(mask);
    const std::uint64_t largest = mask >> shift;
    const std::uint64_t value = (pixel & mask) >> shift;
    return static_cast<std::uint32_t>((value * 255 + largest / 2) / largest);
}

const xcb_visualtype_t* rootVisual(const xcb_screen_t& screen) {
    for (auto depth = xcb_screen_allowed_depths_iterator(&screen); depth.rem > 0;
         xcb_depth_next(&depth)) {
        for (auto visual = xcb_depth_visuals_iterator(depth.data); visual.rem > 0;
             xcb_visualtype_next(&visual)) {
            if (visual.data->visual_id == screen.root_visual) {
                return visual.data;
            }
        }
    }
    return nullptr;
}

const xcb_format_t* formatOfDepth(const xcb_setup_t& setup, std::uint8_t depth) {
    for (auto format = xcb_setup_pixmap_formats_iterator(&setup); format.rem > 0;
         xcb_format_next(&format)) {
        if (format.data->depth == depth) {
            return format.data;
        }
    }
    return nullptr;
}

} // namespace

std::size_t PixelLayout::bytesPerRow(int width) const {
    const std::size_t bytes = bytesPerPixel * static_cast<std::size_t>(width);
    return (bytes + rowAlignment - 1) / rowAlignment * rowAlignment;
}

PixelRows PixelLayout::convert(std::span<const std::uint8_t> bytes, int width, int height) const {
    const auto columns = static_cast<std::size_t>(width);
    const auto rows = static_cast<std::size_t>(height);
    PixelRows converted{width, height, std::vector<std::uint32_t>(columns * rows)};
    const bool isOwnLayout =
        bytesPerPixel == 4 && byteOrder == std::endian::native && masks == usualMasks;
    for (std::size_t row = 0; row < rows; ++row) {
        const std::uint8_t* from = bytes.data() + row * bytesPerRow(width);
        std::uint32_t* to = converted.pixels.data() + row * columns;
        if (isOwnLayout) {
            std::memcpy(to, from, columns * bytesPerPixel);
            for (std::size_t column = 0; column < columns; ++column) {
                to[column] |= opaque;
            }
            continue;
        }
        for (std::size_t column = 0; column < columns; ++column) {
            const std::uint32_t pixel =
                pixelAt(from + column * bytesPerPixel, bytesPerPixel, byteOrder);
            to[column] = opaque | component(pixel, masks[0]) << 16 |
                         component(pixel, masks[1]) << 8 | component(pixel, masks[2]);
        }
    }
    return converted;
}

std::optional<PixelLayout> rootPixelLayout(const xcb_setup_t& setup) {
    const xcb_screen_t& screen = *xcb_setup_roots_iterator(&setup).data;
    const xcb_visualtype_t* visual = rootVisual(screen);
    const xcb_format_t* format = formatOfDepth(setup, screen.root_depth);
    if (!visual || !format || format->bits_per_pixel % 8 != 0 || format->bits_per_pixel > 32 ||
        (visual->_class != XCB_VISUAL_CLASS_TRUE_COLOR &&
         visual->_class != XCB_VISUAL_CLASS_DIRECT_COLOR)) {
        return std::nullopt;
    }
    PixelLayout layout;
    layout.bytesPerPixel = format->bits_per_pixel / 8U;
    layout.rowAlignment = format->scanline_pad / 8U;
    layout.byteOrder = setup.image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST ? std::endian::little
                                                                           : std::endian::big;
    layout.masks = {visual->red_mask, visual->green_mask, visual->blue_mask};
    return layout;
}

} // namespace quillon::desktop
