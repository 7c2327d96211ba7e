#pragma once

#include "platform/Window.h"

namespace quillon {

/// Gives a window what all windows round the pointer have in common: transparent and floating, on
/// every desktop, and in nobody's way.
void makeCursorWindow(Window& window);

} // namespace quillon
