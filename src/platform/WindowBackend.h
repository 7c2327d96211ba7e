#pragma once

#include "foundation/Geometry.h"
#include "platform/HostingView.h"

#include <memory>

namespace quillon {

class Window;

/// The host's side of one window. Frames are in global coordinates, in points.
class WindowBackend {
public:
    virtual ~WindowBackend() = default;

    virtual void setFrame(const CGRect& frame) = 0;
    /// Puts the whole picture on the screen once more, whether or not it has changed.
    virtual void display() = 0;
    virtual void setIgnoresMouseEvents(bool ignores) = 0;
    virtual void setContentView(const std::shared_ptr<HostingView>& view) = 0;
    /// Only a titled window has controls for its content.
    virtual void
    setContentViewController(const std::shared_ptr<HostingController>& /*controller*/) {}
    /// In front of the other windows, without taking the keyboard.
    virtual void orderFrontRegardless() = 0;
    /// In front, and with the keyboard.
    virtual void makeKeyAndOrderFront() = 0;
    virtual void orderOut() = 0;
};

/// The windows of the program, as the host makes them.
class Windows {
public:
    virtual ~Windows() = default;

    /// `window` outlives the backend; its fixed properties are read when it first comes on screen.
    virtual std::unique_ptr<WindowBackend> makeWindow(Window& window) = 0;
};

} // namespace quillon
