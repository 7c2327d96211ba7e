#pragma once

#include "desktop/support/VirtualDesktop.h"

namespace quillon::test {

/// A display server with nothing on it but what the test puts there.
inline const VirtualDesktop::Options serverAlone{
    .width = 640, .height = 480, .hasCompositor = false, .hasWindowManager = false};

} // namespace quillon::test
