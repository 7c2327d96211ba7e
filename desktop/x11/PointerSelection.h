#pragma once

#include "desktop/x11/XcbHeaders.h"

namespace quillon::desktop {

/// What a window of this connection asks to be told of all devices it is told, from now on, of the
/// pointer that they move together alone. Each motion is then one event and not two.
///
/// Asks the server what the window asks for. Changes nothing where there is no input extension.
void leaveOutSingleDevices(xcb_connection_t* connection, xcb_window_t window);

} // namespace quillon::desktop
