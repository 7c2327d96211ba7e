#pragma once

#include "desktop/support/XConnection.h"

namespace quillon::test {

/// Gives the one screen of a virtual server another size, as when a projector is plugged in. No
/// size can be larger than the one that the server was started with.
void changeScreenSize(const XConnection& connection, int width, int height);

} // namespace quillon::test
