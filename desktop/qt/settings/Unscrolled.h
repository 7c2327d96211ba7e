#pragma once

#include <QWheelEvent>

namespace quillon::desktop {

/// A control that leaves the wheel alone: a page that scrolls under the pointer changes no setting.
template <typename Control>
class Unscrolled : public Control {
public:
    using Control::Control;

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

} // namespace quillon::desktop
