#pragma once

#include "desktop/x11/XcbHeaders.h"

#include <cstdint>
#include <optional>
#include <set>

namespace quillon::desktop {

/// Hears the release of a key wherever it goes, by the XInput extension on the root window.
///
/// It listens only from a call of `await` until that key is up: at all other times the keys of
/// other programs are none of this one's business. It may share a connection with a toolkit, and
/// listens from the next request on that is sent there.
class RawKeyReleases {
public:
    struct Release {
        xcb_keycode_t keyCode = 0;
        xcb_timestamp_t time = 0;
    };

    /// The connection must outlive this.
    RawKeyReleases(xcb_connection_t* connection, xcb_window_t root);
    ~RawKeyReleases();
    RawKeyReleases(const RawKeyReleases&) = delete;
    RawKeyReleases& operator=(const RawKeyReleases&) = delete;

    /// Without effect when the server does not have the extension.
    void await(xcb_keycode_t keyCode);

    /// To be given every event of the connection, in order. Answers the release that it tells,
    /// which may be one of another key that was let go meanwhile.
    std::optional<Release> take(const xcb_generic_event_t& event);

private:
    void select(std::uint32_t events);

    xcb_connection_t* m_connection;
    xcb_window_t m_root;
    /// The number by which events name the extension; 0 when the server has none.
    std::uint8_t m_extension;
    std::set<xcb_keycode_t> m_awaited;
};

} // namespace quillon::desktop
