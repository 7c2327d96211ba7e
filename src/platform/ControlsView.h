#pragma once

#include <memory>
#include <utility>

namespace quillon {

/// A root view made of controls, described as values, which the host lays out with its own toolkit.
class ControlsView {
public:
    virtual ~ControlsView() = default;

    /// The window that shows it has closed.
    virtual void onDisappear() {}
};

/// Hosts a root view made of controls, its type erased, and gives it to a window as its content.
struct HostingController {
    explicit HostingController(std::unique_ptr<ControlsView> root)
        : rootView(std::move(root)) {}

    std::unique_ptr<ControlsView> rootView;
};

} // namespace quillon
