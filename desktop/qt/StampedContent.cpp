#include "desktop/qt/StampedContent.h"

#include "desktop/qt/QtBitmap.h"
#include "desktop/qt/QtConversions.h"
#include "raster/Blending.h"

#include <cstddef>
#include <cstdint>

namespace quillon::desktop {

namespace {

const QImage& imageOf(const Bitmap& bitmap) {
    return static_cast<const QtBitmap&>(bitmap).image();
}

} // namespace

bool StampedContent::put(xcb_window_t window, const StampedPicture& picture,
                         const QRegion& pixels) {
    if (!load(window, picture.stamp)) {
        return false;
    }
    const QPoint corner = (toQPointF(picture.corner) * picture.stamp->scale()).toPoint();
    const QRect stamp(corner, imageOf(*picture.stamp).size());
    const std::uint32_t ground = premultipliedPixel(picture.ground, 1);
    for (const QRect& rect : pixels - stamp) {
        m_serverPicture.fill(window, ground, toXRectangle(rect));
    }
    for (const QRect& rect : pixels& stamp) {
        const QPoint from = rect.topLeft() - corner;
        m_serverPicture.copy(
            window, {static_cast<std::int16_t>(from.x()), static_cast<std::int16_t>(from.y())},
            toXRectangle(rect));
    }
    m_serverPicture.flush();
    return true;
}

bool StampedContent::load(xcb_window_t window, const std::shared_ptr<const Bitmap>& stamp) {
    if (stamp == m_loaded) {
        return true;
    }
    const QImage& image = imageOf(*stamp);
    const bool isLoaded = m_serverPicture.load(
        window, {image.constBits(), static_cast<std::size_t>(image.bytesPerLine())},
        static_cast<std::uint16_t>(image.width()), static_cast<std::uint16_t>(image.height()));
    m_loaded = isLoaded ? stamp : nullptr;
    return isLoaded;
}

} // namespace quillon::desktop
