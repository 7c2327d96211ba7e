#include "desktop/support/ScreenReader.h"

#include <png.h>

#include <cstdlib>
#include <ostream>
#include <stdexcept>

namespace quillon::test {

bool isNear(Rgb a, Rgb b, int tolerance) {
    return std::abs(a.red - b.red) <= tolerance && std::abs(a.green - b.green) <= tolerance &&
           std::abs(a.blue - b.blue) <= tolerance;
}

std::ostream& operator<<(std::ostream& stream, Rgb color) {
    return stream << "rgb(" << color.red << ", " << color.green << ", " << color.blue << ")";
}

Rgb ScreenReader::pixel(Pixel place) const {
    const auto bytes = read(place, 1, 1);
    return {bytes[2], bytes[1], bytes[0]};
}

bool ScreenReader::waitForPixel(Pixel place, const std::function<bool(Rgb)>& condition,
                                std::chrono::milliseconds bound) const {
    return eventually([&] { return condition(pixel(place)); }, bound);
}

bool ScreenReader::waitForColor(Pixel place, Rgb color, std::chrono::milliseconds bound) const {
    return waitForPixel(
        place, [&](Rgb seen) { return isNear(seen, color); }, bound);
}

void ScreenReader::save(const std::string& file) const {
    const int width = m_connection.screen().width_in_pixels;
    const int height = m_connection.screen().height_in_pixels;
    const auto bytes = read({0, 0}, width, height);
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width);
    image.height = static_cast<png_uint_32>(height);
    image.format = PNG_FORMAT_BGR;
    std::vector<std::uint8_t> colors;
    colors.reserve(bytes.size() / 4 * 3);
    for (std::size_t index = 0; index < bytes.size(); index += 4) {
        colors.insert(colors.end(), bytes.begin() + static_cast<std::ptrdiff_t>(index),
                      bytes.begin() + static_cast<std::ptrdiff_t>(index) + 3);
    }
    if (png_image_write_to_file(&image, file.c_str(), 0, colors.data(), 0, nullptr) == 0) {
        throw std::runtime_error("cannot write " + file);
    }
}

std::vector<std::uint8_t> ScreenReader::read(Pixel corner, int width, int height) const {
    const auto cookie =
        xcb_get_image(m_connection.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, m_connection.root(),
                      static_cast<std::int16_t>(corner.x), static_cast<std::int16_t>(corner.y),
                      static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height), ~0U);
    const XOwned<xcb_get_image_reply_t> reply(
        xcb_get_image_reply(m_connection.get(), cookie, nullptr));
    if (!reply) {
        throw std::runtime_error("the screen cannot be read");
    }
    const std::uint8_t* data = xcb_get_image_data(reply.get());
    return {data, data + xcb_get_image_data_length(reply.get())};
}

} // namespace quillon::test
