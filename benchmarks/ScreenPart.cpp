#include "benchmarks/ScreenPart.h"

#include <stdexcept>

namespace quillon::bench {

std::vector<std::uint8_t> screenPart(const test::XConnection& connection, int x, int y, int width,
                                     int height) {
    const auto cookie =
        xcb_get_image(connection.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, connection.root(),
                      static_cast<std::int16_t>(x), static_cast<std::int16_t>(y),
                      static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height), ~0U);
    const test::XOwned<xcb_get_image_reply_t> image(
        xcb_get_image_reply(connection.get(), cookie, nullptr));
    if (!image) {
        throw std::runtime_error("the screen cannot be read");
    }
    const std::uint8_t* const data = xcb_get_image_data(image.get());
    std::vector<std::uint8_t> pixels(data, data + xcb_get_image_data_length(image.get()));
    // The fourth byte of a pixel is nobody's, and changes when nothing is seen to.
    for (std::size_t unused = 3; unused < pixels.size(); unused += 4) {
        pixels[unused] = 0;
    }
    return pixels;
}

} // namespace quillon::bench
