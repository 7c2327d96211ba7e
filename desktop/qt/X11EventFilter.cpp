#include "desktop/qt/X11EventFilter.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace quillon::desktop {

X11EventFilter::X11EventFilter() {
    QCoreApplication::instance()->installNativeEventFilter(this);
}

Cancellable X11EventFilter::addHandler(Handler handler) {
    auto entry = std::make_shared<Handler>(std::move(handler));
    m_handlers->push_back(entry);
    return Cancellable([list = std::weak_ptr(m_handlers), weak = std::weak_ptr(entry)] {
        const auto handlers = list.lock();
        const auto dropped = weak.lock();
        if (handlers && dropped) {
            std::erase(*handlers, dropped);
        }
    });
}

bool X11EventFilter::nativeEventFilter(const QByteArray& eventType, void* message,
                                       qintptr* /*result*/) {
    if (eventType != "xcb_generic_event_t" || m_handlers->empty()) {
        return false;
    }
    const auto& event = *static_cast<const xcb_generic_event_t*>(message);
    const auto list = m_handlers;
    const Handlers present = *list;
    return std::ranges::any_of(present, [&](const auto& handler) {
        return std::ranges::find(*list, handler) != list->end() && (*handler)(event);
    });
}

} // namespace quillon::desktop
