#include "desktop/x11/Panels.h"

#include "desktop/x11/XRectangles.h"
#include "desktop/x11/XcbHandles.h"

#include <algorithm>
#include <cstdint>
#include <span>

namespace quillon::desktop {

namespace {

constexpr std::uint32_t kMostValues = 4096;

/// The 32-bit values of a property, as long as the reply is there.
std::span<const std::uint32_t> valuesOf(const XcbOwned<xcb_get_property_reply_t>& reply) {
    if (!reply || reply->format != 32) {
        return {};
    }
    return {static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get())),
            reply->value_len};
}

/// What is asked about one window. All of it is asked for all windows before the first answer is
/// waited for.
struct Question {
    xcb_get_window_attributes_cookie_t attributes;
    xcb_get_property_cookie_t type;
    xcb_get_geometry_cookie_t geometry;
    xcb_translate_coordinates_cookie_t corner;
};

} // namespace

Panels::Panels(xcb_connection_t* connection)
    : m_connection(connection)
    , m_root(rootWindow(connection))
    , m_order(atomNamed(connection, "_NET_CLIENT_LIST_STACKING"))
    , m_type(atomNamed(connection, "_NET_WM_WINDOW_TYPE"))
    , m_panelType(atomNamed(connection, "_NET_WM_WINDOW_TYPE_DOCK")) {}

std::vector<xcb_rectangle_t> Panels::inSight() const {
    const XcbOwned<xcb_get_property_reply_t> order(xcb_get_property_reply(
        m_connection,
        xcb_get_property(m_connection, 0, m_root, m_order, XCB_ATOM_WINDOW, 0, kMostValues),
        nullptr));
    const auto fromBelow = valuesOf(order);
    std::vector<Question> fromAbove;
    for (auto window = fromBelow.rbegin(); window != fromBelow.rend(); ++window) {
        fromAbove.push_back(
            {xcb_get_window_attributes(m_connection, *window),
             xcb_get_property(m_connection, 0, *window, m_type, XCB_ATOM_ATOM, 0, kMostValues),
             xcb_get_geometry(m_connection, *window),
             xcb_translate_coordinates(m_connection, *window, m_root, 0, 0)});
    }
    std::vector<xcb_rectangle_t> panels;
    std::vector<xcb_rectangle_t> above;
    for (const Question& asked : fromAbove) {
        const XcbOwned<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(m_connection, asked.attributes, nullptr));
        const XcbOwned<xcb_get_property_reply_t> type(
            xcb_get_property_reply(m_connection, asked.type, nullptr));
        const XcbOwned<xcb_get_geometry_reply_t> geometry(
            xcb_get_geometry_reply(m_connection, asked.geometry, nullptr));
        const XcbOwned<xcb_translate_coordinates_reply_t> corner(
            xcb_translate_coordinates_reply(m_connection, asked.corner, nullptr));
        // A window may go at any time.
        if (!attributes || !geometry || !corner ||
            attributes->map_state != XCB_MAP_STATE_VIEWABLE) {
            continue;
        }
        const xcb_rectangle_t frame{corner->dst_x, corner->dst_y, geometry->width,
                                    geometry->height};
        const auto types = valuesOf(type);
        if (std::ranges::find(types, m_panelType) == types.end()) {
            above.push_back(frame);
        } else if (std::ranges::none_of(
                       above, [&](const auto& other) { return contains(other, frame); })) {
            panels.push_back(frame);
        }
    }
    return panels;
}

void Panels::handleEvent(const xcb_generic_event_t& event) {
    if (eventType(event) != XCB_PROPERTY_NOTIFY) {
        return;
    }
    const auto& notice = eventAs<xcb_property_notify_event_t>(event);
    if (notice.window == m_root && notice.atom == m_order) {
        changed.send();
    }
}

} // namespace quillon::desktop
