#pragma once

#include "platform/Window.h"

namespace quillon {

/// The window that dims the desktop: borderless, transparent, on every desktop, and let through by
/// every click.
class SpotlightWindow : public Window {
public:
    /// `frame` in global coordinates. The circle stands where the pointer is.
    explicit SpotlightWindow(const CGRect& frame);

    /// `cursor` in global coordinates, `radius` in points; `intensity` is the opacity of the black.
    void update(CGPoint cursor, CGFloat radius, double intensity);

private:
    CGPoint inView(CGPoint place) const;
};

} // namespace quillon
