#pragma once

#include "desktop/support/XConnection.h"

namespace quillon::test {

/// Gives the one screen of a virtual server another size, as when a projector is plugged in. No
/// size can be larger than the one that the server was started with.
void changeScreenSize(const XConnection& connection, int width, int height);

/// Switches the one screen off, as when its plug is pulled.
void switchScreenOff(const XConnection& connection);

/// Makes two displays of the one screen; the left one, which is the primary one, has this width. A
/// gap between them belongs to neither.
void splitScreen(const XConnection& connection, int leftWidth, int gap = 0);

} // namespace quillon::test
