#pragma once

#include "desktop/x11/XcbHandles.h"

#include <xcb/xinput.h>

#include <cstdint>
#include <optional>

namespace quillon::desktop {

/// A motion in a window, as the server tells it.
struct PointerMotion {
    xcb_window_t window = noWindow;
    /// Whole device pixels of that window, from its top left.
    int x = 0;
    int y = 0;
    bool isPrimaryHeld = false;
    /// Told by one device for itself, and not of the pointer that all devices move together.
    bool isOfDeviceAlone = false;
};

/// The number by which events name the input extension; 0, which none has, without a connection or
/// an extension.
std::uint8_t inputExtension(xcb_connection_t* connection);

/// Nothing when the event is no motion.
std::optional<PointerMotion> pointerMotion(const xcb_generic_event_t& event,
                                           std::uint8_t inputExtension);

} // namespace quillon::desktop
