#include "desktop/x11/ScreenDamage.h"

#include "desktop/x11/XRectangles.h"
#include "desktop/x11/XcbHandles.h"

#include <xcb/damage.h>
#include <xcb/xfixes.h>

#include <algorithm>

namespace quillon::desktop {

bool ScreenDamage::isOffered(xcb_connection_t* connection) {
    if (!xcb_get_extension_data(connection, &xcb_damage_id)->present ||
        !xcb_get_extension_data(connection, &xcb_xfixes_id)->present) {
        return false;
    }
    const auto damageRequest = xcb_damage_query_version(connection, 1, 1);
    const auto fixesRequest = xcb_xfixes_query_version(connection, 2, 0);
    const XcbOwned<xcb_damage_query_version_reply_t> damage(
        xcb_damage_query_version_reply(connection, damageRequest, nullptr));
    const XcbOwned<xcb_xfixes_query_version_reply_t> fixes(
        xcb_xfixes_query_version_reply(connection, fixesRequest, nullptr));
    return damage && fixes && fixes->major_version >= 2;
}

ScreenDamage::ScreenDamage(xcb_connection_t* connection, xcb_window_t root)
    : m_connection(connection)
    , m_damage(xcb_generate_id(connection))
    , m_region(xcb_generate_id(connection))
    , m_noticeType(static_cast<std::uint8_t>(
          xcb_get_extension_data(connection, &xcb_damage_id)->first_event + XCB_DAMAGE_NOTIFY)) {
    xcb_damage_create(connection, m_damage, root, XCB_DAMAGE_REPORT_LEVEL_BOUNDING_BOX);
    xcb_xfixes_create_region(connection, m_region, 0, nullptr);
    xcb_flush(connection);
}

std::optional<xcb_rectangle_t> ScreenDamage::noticeIn(const xcb_generic_event_t& event) const {
    return eventType(event) == m_noticeType
               ? std::optional(eventAs<xcb_damage_notify_event_t>(event).area)
               : std::nullopt;
}

void ScreenDamage::take() {
    xcb_damage_subtract(m_connection, m_damage, XCB_XFIXES_REGION_NONE, XCB_XFIXES_REGION_NONE);
    xcb_flush(m_connection);
}

bool ScreenDamage::takeWithin(const xcb_rectangle_t& rect) {
    xcb_damage_subtract(m_connection, m_damage, XCB_XFIXES_REGION_NONE, m_region);
    const XcbOwned<xcb_xfixes_fetch_region_reply_t> reply(xcb_xfixes_fetch_region_reply(
        m_connection, xcb_xfixes_fetch_region(m_connection, m_region), nullptr));
    if (!reply) {
        return false;
    }
    const xcb_rectangle_t* changed = xcb_xfixes_fetch_region_rectangles(reply.get());
    return std::any_of(changed, changed + xcb_xfixes_fetch_region_rectangles_length(reply.get()),
                       [&](const xcb_rectangle_t& part) { return overlap(part, rect); });
}

} // namespace quillon::desktop
