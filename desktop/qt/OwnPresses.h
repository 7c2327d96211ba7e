#pragma once

#include "platform/EventMonitors.h"

#include <QObject>

#include <functional>

namespace quillon::desktop {

/// Hears every press of a pointer button in a window of the program, before the window does, for as
/// long as it lives. The application object must exist.
class OwnPresses : public QObject {
public:
    explicit OwnPresses(std::function<void(const NSEvent&)> onPress);

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    std::function<void(const NSEvent&)> m_onPress;
};

} // namespace quillon::desktop
