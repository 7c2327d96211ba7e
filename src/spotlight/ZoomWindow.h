#pragma once

#include "platform/CGImage.h"
#include "platform/Window.h"

#include <optional>

namespace quillon {

/// The lens: a small black borderless window with a shadow, on every desktop, and let through by
/// every click.
///
/// It is part of what is captured. It stays out of its own picture because it stands beside the
/// pointer, and appears in it where the captured square reaches it.
class ZoomWindow : public Window {
public:
    /// `frame` in global coordinates.
    ZoomWindow(const CGRect& frame, CGFloat magnification);

    /// Taken up by the view with the next picture.
    CGFloat magnification() const { return m_magnification; }
    void setMagnification(CGFloat magnification) { m_magnification = magnification; }
    const std::optional<NSImage>& currentImage() const { return m_currentImage; }

    /// Shows the picture, with the crosshair if the setting says so at this moment.
    void updateImage(const NSImage& image);

private:
    CGFloat m_magnification = 2.0;
    std::optional<NSImage> m_currentImage;
};

} // namespace quillon
