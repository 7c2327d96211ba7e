#pragma once

#include "desktop/qt/StatusArea.h"
#include "platform/StatusBar.h"

namespace quillon {
class Application;
}

namespace quillon::desktop {

/// The tray of the desktop. `events`, `connection` and `application` outlive it, and it outlives
/// its items.
class QtStatusBar : public StatusBar {
public:
    QtStatusBar(X11EventFilter& events, xcb_connection_t* connection, Application& application)
        : m_area(events, connection)
        , m_application(application) {}

    std::unique_ptr<StatusItem> statusItemWithLength(CGFloat length) override;

private:
    StatusArea m_area;
    Application& m_application;
};

} // namespace quillon::desktop
