#pragma once

#include "foundation/Cancellable.h"

#include <QAbstractNativeEventFilter>

#include <functional>
#include <memory>
#include <vector>

#include <xcb/xcb.h>

namespace quillon::desktop {

/// Hands every event of the X connection to a list of handlers before Qt sees it, for as long as it
/// lives. The application object must exist.
class X11EventFilter : public QAbstractNativeEventFilter {
public:
    /// True when the event is dealt with and goes no further, neither to a later handler nor to Qt.
    using Handler = std::function<bool(const xcb_generic_event_t&)>;

    X11EventFilter();
    X11EventFilter(const X11EventFilter&) = delete;
    X11EventFilter& operator=(const X11EventFilter&) = delete;

    /// Handlers are asked in the order in which they came, until the result is dropped. A handler
    /// may drop itself and others while it is being asked.
    [[nodiscard]] Cancellable addHandler(Handler handler);

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

private:
    using Handlers = std::vector<std::shared_ptr<Handler>>;
    std::shared_ptr<Handlers> m_handlers = std::make_shared<Handlers>();
};

} // namespace quillon::desktop
