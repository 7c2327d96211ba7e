#pragma once

#include "foundation/Geometry.h"
#include "platform/CGImage.h"

#include <memory>
#include <optional>

namespace quillon {

/// Where pixels can be had from. Coordinates are pixels from the bottom left corner, y upward.
class CVImageBuffer {
public:
    virtual ~CVImageBuffer() = default;

    /// In pixels.
    virtual CGSize size() const = 0;
    /// The pixels of a rectangle with whole edges inside of the buffer; null when they cannot be
    /// had, such as those of a screen that has gone. Only these pixels are touched.
    virtual std::shared_ptr<const PixelRows> read(const CGRect& rect) const = 0;
};

/// The recipe for a picture: a part of a buffer, enlarged. No pixel is read before a `CIContext`
/// makes a picture of it. Coordinates are pixels of the picture from the bottom left corner of the
/// whole buffer, y upward.
class CIImage {
public:
    /// The whole of a buffer, which must not be null.
    explicit CIImage(std::shared_ptr<const CVImageBuffer> buffer);

    /// Where the picture lies.
    CGRect extent() const;
    /// What lies in `rect` of it, where it lies; the edges may fall inside of pixels.
    CIImage imageByCroppingToRect(const CGRect& rect) const;
    /// Scaled about the origin by the same factor in both directions, which is more than zero.
    CIImage imageByApplyingTransform(CGFloat scale) const;

private:
    friend class CIContext;

    CGRect inBufferPixels(const CGRect& rect) const;

    std::shared_ptr<const CVImageBuffer> m_buffer;
    /// In pixels of the buffer.
    CGRect m_crop;
    CGFloat m_scale = 1;
};

/// Makes pictures of recipes.
class CIContext {
public:
    /// The part of an image that lies in `rect`, in the buffer's own pixels: enlarging is left to
    /// the drawing. Nothing when there is no such part or its pixels cannot be had.
    std::optional<CGImage> createCGImage(const CIImage& image, const CGRect& rect) const;
};

} // namespace quillon
