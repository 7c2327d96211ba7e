#include "desktop/qt/DirectPainting.h"

#include "desktop/qt/QtConversions.h"

#include <QBackingStore>
#include <QWidget>

#include <algorithm>
#include <cstring>
#include <utility>

namespace quillon::desktop {

namespace {

/// Of one rectangle: beyond this the toolkit's way costs no more.
constexpr int kMostPixels = 256 * 128;

} // namespace

QImage* premultipliedImage(QBackingStore& store) {
    QPaintDevice* device = store.paintDevice();
    if (device->devType() != QInternal::Image) {
        return nullptr;
    }
    auto* image = static_cast<QImage*>(device);
    return image->format() == QImage::Format_ARGB32_Premultiplied ? image : nullptr;
}

DirectPainting::DirectPainting(const QWidget& widget, xcb_connection_t* connection, Paint paint)
    : m_widget(widget)
    , m_upload(connection)
    , m_paint(std::move(paint)) {}

bool DirectPainting::put(QBackingStore& store, const QRegion& region) {
    QImage* const picture = premultipliedImage(store);
    const auto inPixels = [this](const QRect& rect) {
        return devicePixels(fromQRectF(rect), m_widget.devicePixelRatio());
    };
    const auto isSmall = [&](const QRect& rect) {
        const QRect pixels = inPixels(rect);
        return picture->rect().contains(pixels) && pixels.height() * pixels.width() <= kMostPixels;
    };
    if (!picture || !std::all_of(region.begin(), region.end(), isSmall)) {
        return false;
    }
    follow(*picture);
    const PixelSource source{picture->constBits(),
                             static_cast<std::size_t>(picture->bytesPerLine())};
    const auto window = static_cast<xcb_window_t>(m_widget.internalWinId());
    bool isPut = true;
    for (const QRect& rect : region) {
        paint(rect);
        isPut = m_upload.put(window, source, toXRectangle(inPixels(rect))) && isPut;
    }
    m_upload.flush();
    return isPut;
}

void DirectPainting::follow(QImage& picture) {
    if (m_pixels.constBits() == picture.constBits() && m_pixels.size() == picture.size() &&
        m_pixels.devicePixelRatio() == picture.devicePixelRatio()) {
        return;
    }
    if (m_painter.isActive()) {
        m_painter.end();
    }
    m_pixels = QImage(picture.bits(), picture.width(), picture.height(), picture.bytesPerLine(),
                      picture.format());
    m_pixels.setDevicePixelRatio(picture.devicePixelRatio());
    m_painter.begin(&m_pixels);
}

void DirectPainting::paint(const QRect& rect) {
    clear(devicePixels(fromQRectF(rect), m_pixels.devicePixelRatio()));
    m_painter.setClipRect(rect);
    m_painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    m_painter.setOpacity(1);
    m_paint(m_painter, rect);
}

void DirectPainting::clear(const QRect& pixels) {
    constexpr int bytesPerPixel = sizeof(QRgb);
    const auto rowLength = static_cast<std::size_t>(pixels.width() * bytesPerPixel);
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        std::memset(m_pixels.scanLine(y) + pixels.left() * bytesPerPixel, 0, rowLength);
    }
}

} // namespace quillon::desktop
