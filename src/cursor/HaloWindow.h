#pragma once

#include "platform/Window.h"

namespace quillon {

/// The small transparent window that carries the halo. It is made with the built-in look, a cyan
/// ring of 40 points, and lets every click through.
class HaloWindow : public Window {
public:
    HaloWindow();
};

} // namespace quillon
