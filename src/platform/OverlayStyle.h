#pragma once

namespace quillon {

class Window;

/// Gives a borderless window what all have that lie over the desktop: transparent and without a
/// shadow, floating, on every desktop, and let through by every click.
void applyOverlayStyle(Window& window);

} // namespace quillon
