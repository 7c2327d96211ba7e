#pragma once

#include "platform/Graphics.h"

namespace quillon::desktop {

/// Bitmaps of QImage, and texts measured in the application's font.
class QtGraphics : public Graphics {
public:
    std::unique_ptr<Bitmap> makeBitmap(CGSize size, CGFloat scale) override;
    CGRect inkBounds(const Text& text) override;
};

} // namespace quillon::desktop
