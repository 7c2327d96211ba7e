#pragma once

#include "foundation/Geometry.h"
#include "platform/Image.h"
#include "platform/Menu.h"

#include <memory>
#include <optional>
#include <string>

namespace quillon {

inline constexpr CGFloat NSVariableStatusItemLength = -1;

/// The part of a status item that shows a picture and takes clicks.
class StatusBarButton {
public:
    virtual ~StatusBarButton() = default;

    virtual void setImage(const Image& image) = 0;
    /// Sent up the responder chain by a click, unless the item has a menu.
    virtual void setAction(std::string selector) = 0;
};

/// One item in the status area. With a menu set, a click opens the menu. The item shows by itself
/// as soon as the desktop has a status area, and goes when it is destroyed.
class StatusItem {
public:
    virtual ~StatusItem() = default;

    /// Null when the item has no button.
    virtual StatusBarButton* button() = 0;
    virtual void setMenu(const Menu& menu) = 0;
};

class StatusBar {
public:
    virtual ~StatusBar() = default;

    /// Never null.
    virtual std::unique_ptr<StatusItem> statusItemWithLength(CGFloat length) = 0;
};

} // namespace quillon
