#pragma once

#include "platform/Window.h"

namespace quillon::test {

/// That a window is transparent and borderless and stands above all others on every space.
void expectToFloatTransparently(const Window& window);

} // namespace quillon::test
