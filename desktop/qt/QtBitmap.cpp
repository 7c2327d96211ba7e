#include "desktop/qt/QtBitmap.h"

#include "desktop/qt/QtConversions.h"

#include <cstdlib>

namespace quillon::desktop {

namespace {

/// Memory that comes cleared takes up no room where nothing is painted.
QImage transparentImage(QSize pixels) {
    const qsizetype bytesPerLine = qsizetype{4} * pixels.width();
    void* const memory = pixels.isEmpty() ? nullptr
                                          : std::calloc(static_cast<std::size_t>(pixels.height()),
                                                        static_cast<std::size_t>(bytesPerLine));
    if (!memory) {
        return QImage();
    }
    return QImage(static_cast<uchar*>(memory), pixels.width(), pixels.height(), bytesPerLine,
                  QImage::Format_ARGB32_Premultiplied, std::free, memory);
}

} // namespace

QtBitmap::QtBitmap(CGSize size, CGFloat scale)
    : m_size(size)
    , m_scale(scale)
    , m_image(transparentImage(devicePixels({0, 0, size.width, size.height}, scale).size())) {}

GraphicsContext& QtBitmap::beginPainting(std::span<const CGRect> clip) {
    QRegion region;
    for (const CGRect& rect : clip) {
        region += devicePixels(rect, m_scale);
    }
    region &= m_image.rect();
    return m_context.emplace(canvasOf(m_image), region, m_scale);
}

void QtBitmap::endPainting() {
    m_context.reset();
}

} // namespace quillon::desktop
