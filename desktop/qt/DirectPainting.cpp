#include "desktop/qt/DirectPainting.h"

#include "desktop/qt/QtConversions.h"
#include "raster/PixelPainting.h"

#include <QBackingStore>
#include <QWidget>

#include <algorithm>
#include <optional>
#include <utility>

namespace quillon::desktop {

namespace {

/// Of one rectangle: beyond this the toolkit's way costs no more.
constexpr int kMostPixels = 256 * 128;

} // namespace

DirectPainting::DirectPainting(const QWidget& widget, xcb_connection_t* connection, Paint paint)
    : m_widget(widget)
    , m_upload(connection)
    , m_paint(std::move(paint)) {}

bool DirectPainting::put(QBackingStore& store, const QRegion& region) {
    const std::optional<PixelCanvas> canvas = canvasOf(*store.paintDevice());
    const auto inPixels = [this](const QRect& rect) {
        return devicePixels(fromQRectF(rect), m_widget.devicePixelRatio());
    };
    const auto isSmall = [&](const QRect& rect) {
        const PixelRect pixels = toPixelRect(inPixels(rect));
        return pixels.intersection(canvas->place) == pixels &&
               pixels.height() * pixels.width() <= kMostPixels;
    };
    if (!canvas || !std::all_of(region.begin(), region.end(), isSmall)) {
        return false;
    }
    const PixelSource source{reinterpret_cast<const std::uint8_t*>(canvas->firstPixel),
                             static_cast<std::size_t>(canvas->rowLength) * sizeof(std::uint32_t)};
    const auto window = static_cast<xcb_window_t>(m_widget.internalWinId());
    bool isPut = true;
    for (const QRect& rect : region) {
        const QRect pixels = inPixels(rect);
        clearPixels(canvas->part(toPixelRect(pixels)));
        m_paint(*canvas, rect);
        isPut = m_upload.put(window, source, toXRectangle(pixels)) && isPut;
    }
    m_upload.flush();
    return isPut;
}

} // namespace quillon::desktop
