#pragma once

#include <functional>
#include <utility>

namespace quillon {

/// Hears a press of the view to which it is applied, beside whatever else the view does with it.
struct PressEventsModifier {
    /// Called at the press and at every move until the release.
    std::function<void()> onPress;
    std::function<void()> onRelease;
};

inline PressEventsModifier pressEvents(std::function<void()> onPress,
                                       std::function<void()> onRelease) {
    return {std::move(onPress), std::move(onRelease)};
}

} // namespace quillon
