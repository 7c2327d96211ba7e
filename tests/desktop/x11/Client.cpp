#include "desktop/x11/Client.h"

namespace quillon::test {

void Client::pump(const Handler& handler) const {
    sync();
    while (const desktop::XcbOwned<xcb_generic_event_t> event{
        xcb_poll_for_queued_event(connection())}) {
        handler(*event);
    }
}

bool Client::pumpUntil(const std::function<bool()>& done, const Handler& handler) const {
    return eventually([&] {
        pump(handler);
        return done();
    });
}

} // namespace quillon::test
