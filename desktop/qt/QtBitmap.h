#pragma once

#include "desktop/qt/QtGraphicsContext.h"
#include "platform/Bitmap.h"

#include <QImage>

#include <optional>
#include <span>

namespace quillon::desktop {

/// A bitmap as a QImage of device pixels.
class QtBitmap : public Bitmap {
public:
    QtBitmap(CGSize size, CGFloat scale);

    CGSize size() const override { return m_size; }
    CGFloat scale() const override { return m_scale; }

    /// In device pixels, premultiplied; its device pixel ratio is left at 1.
    const QImage& image() const { return m_image; }

protected:
    GraphicsContext& beginPainting(std::span<const CGRect> clip) override;
    void endPainting() override;

private:
    CGSize m_size;
    CGFloat m_scale;
    QImage m_image;
    std::optional<QtGraphicsContext> m_context;
};

} // namespace quillon::desktop
