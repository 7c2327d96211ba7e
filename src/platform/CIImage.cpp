#include "platform/CIImage.h"

#include <cmath>
#include <utility>

namespace quillon {

namespace {

CGRect scaled(const CGRect& rect, CGFloat factor) {
    return {rect.x * factor, rect.y * factor, rect.width * factor, rect.height * factor};
}

/// Widened to whole pixels.
CGRect wholePixels(const CGRect& rect) {
    const CGFloat left = std::floor(rect.minX());
    const CGFloat bottom = std::floor(rect.minY());
    return {left, bottom, std::ceil(rect.maxX()) - left, std::ceil(rect.maxY()) - bottom};
}

} // namespace

CIImage::CIImage(std::shared_ptr<const CVImageBuffer> buffer)
    : m_buffer(std::move(buffer))
    , m_crop{0, 0, m_buffer->size().width, m_buffer->size().height} {}

CGRect CIImage::extent() const {
    return scaled(m_crop, m_scale);
}

CIImage CIImage::imageByCroppingToRect(const CGRect& rect) const {
    CIImage cropped = *this;
    cropped.m_crop = inBufferPixels(rect);
    return cropped;
}

CIImage CIImage::imageByApplyingTransform(CGFloat scale) const {
    CIImage enlarged = *this;
    enlarged.m_scale *= scale;
    return enlarged;
}

CGRect CIImage::inBufferPixels(const CGRect& rect) const {
    return m_crop.intersection(scaled(rect, 1 / m_scale));
}

std::optional<CGImage> CIContext::createCGImage(const CIImage& image, const CGRect& rect) const {
    const CGRect part = image.inBufferPixels(rect);
    if (part.isEmpty()) {
        return std::nullopt;
    }
    const CGSize size = image.m_buffer->size();
    const CGRect whole = wholePixels(part).intersection({0, 0, size.width, size.height});
    auto rows = image.m_buffer->read(whole);
    if (!rows) {
        return std::nullopt;
    }
    // The rows count from the top, the buffer from the bottom.
    return CGImage{
        std::move(rows),
        {part.x - whole.x, whole.maxY() - part.maxY(), part.width, part.height},
    };
}

} // namespace quillon
