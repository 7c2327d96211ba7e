#pragma once

#include "foundation/Geometry.h"
#include "platform/DeviceDescription.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// A screen as it stood when it was asked for. Frames are in global coordinates, in points.
struct NSScreen {
    CGRect frame;
    /// The frame without panels and docks.
    CGRect visibleFrame;
    /// Device pixels to a point.
    CGFloat backingScaleFactor = 1;
    std::string localizedName;
    /// "NSScreenNumber" is the number of its display for screen capture; missing when the host
    /// cannot tell.
    DeviceDescription deviceDescription{};
    double maximumFramesPerSecond = 60;

    friend bool operator==(const NSScreen&, const NSScreen&) = default;
};

/// Posted on the notification centre when screens come, go, move or change their size or scale.
inline constexpr std::string_view NSApplicationDidChangeScreenParametersNotification =
    "NSApplicationDidChangeScreenParametersNotification";

class Screens {
public:
    virtual ~Screens() = default;

    /// All screens; the first is the primary one, whose bottom left corner is the global origin.
    virtual std::vector<NSScreen> screens() const = 0;
    /// The screen with the window that has the keyboard, else the primary one; nothing when no
    /// screen is known.
    virtual std::optional<NSScreen> mainScreen() const = 0;
};

} // namespace quillon
