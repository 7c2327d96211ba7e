#pragma once

#include "desktop/x11/XcbHeaders.h"
#include "foundation/Subject.h"

#include <cstdint>

namespace quillon::desktop {

/// Knows at any time whether a compositor is at work, without asking: the server tells when that
/// changes.
class CompositorWatch {
public:
    /// The connection must outlive this.
    explicit CompositorWatch(xcb_connection_t* connection);
    CompositorWatch(const CompositorWatch&) = delete;
    CompositorWatch& operator=(const CompositorWatch&) = delete;

    bool isRunning() const { return m_isRunning; }
    /// Sent after each change.
    Subject<> changed;

    /// To be given every event of the connection, in order. True when the event was meant for this
    /// and should go no further.
    bool handleEvent(const xcb_generic_event_t& event);

private:
    xcb_atom_t m_selection;
    /// Tells this watch's notices from those that a toolkit asked for.
    xcb_window_t m_listener;
    std::uint8_t m_firstEvent = 0;
    bool m_isRunning = false;
};

} // namespace quillon::desktop
