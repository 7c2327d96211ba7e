#include "desktop/x11/CompositorWatch.h"

#include "desktop/x11/Compositor.h"
#include "desktop/x11/XcbHandles.h"

#include <xcb/xfixes.h>

namespace quillon::desktop {

CompositorWatch::CompositorWatch(xcb_connection_t* connection)
    : m_selection(atomNamed(connection, "_NET_WM_CM_S0"))
    , m_listener(rootWindow(connection)) {
    const xcb_query_extension_reply_t* extension =
        xcb_get_extension_data(connection, &xcb_xfixes_id);
    if (extension && extension->present) {
        m_firstEvent = extension->first_event;
        const XcbOwned<xcb_xfixes_query_version_reply_t> version(xcb_xfixes_query_version_reply(
            connection, xcb_xfixes_query_version(connection, 5, 0), nullptr));
        xcb_xfixes_select_selection_input(
            connection, m_listener, m_selection,
            XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    }
    // Asked for after the notices, so that no change falls in between.
    m_isRunning = isCompositorRunning(connection);
}

bool CompositorWatch::handleEvent(const xcb_generic_event_t& event) {
    if (m_firstEvent == 0 || eventType(event) != m_firstEvent + XCB_XFIXES_SELECTION_NOTIFY) {
        return false;
    }
    const auto& notice = eventAs<xcb_xfixes_selection_notify_event_t>(event);
    if (notice.selection != m_selection || notice.window != m_listener) {
        return false;
    }
    const bool isRunning = notice.owner != noWindow;
    if (isRunning != m_isRunning) {
        m_isRunning = isRunning;
        changed.send();
    }
    return true;
}

} // namespace quillon::desktop
