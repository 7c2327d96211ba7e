#pragma once

#include "foundation/Geometry.h"
#include "platform/ContentView.h"
#include "platform/ControlsView.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>

namespace quillon {

/// Hosts a root view that paints itself, its type erased, and gives it to a window as its content.
struct HostingView {
    explicit HostingView(std::unique_ptr<ContentView> root)
        : rootView(std::move(root)) {}

    /// Puts another root view in the place of the present one, on the screen as well.
    void setRootView(std::unique_ptr<ContentView> root) {
        rootView = std::move(root);
        if (onRootViewChange) {
            onRootViewChange();
        }
    }

    std::unique_ptr<ContentView> rootView;
    /// How the host that shows the view hears of another root view.
    std::function<void()> onRootViewChange;
    /// In the window's own coordinates, in points.
    CGRect frame;
    std::uint32_t autoresizingMask = 0;
};

/// The same for a root view made of controls, which only a titled window takes.
struct HostingController {
    explicit HostingController(std::unique_ptr<ControlsView> root)
        : rootView(std::move(root)) {}

    std::unique_ptr<ControlsView> rootView;
};

} // namespace quillon
