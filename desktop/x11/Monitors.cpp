#include "desktop/x11/Monitors.h"

#include "desktop/x11/XcbHandles.h"

#include <xcb/randr.h>

#include <algorithm>

namespace quillon::desktop {

namespace {

constexpr std::uint32_t wholeRootNumber = 1;

bool hasMonitors(xcb_connection_t* connection) {
    if (!xcb_get_extension_data(connection, &xcb_randr_id)->present) {
        return false;
    }
    const XcbOwned<xcb_randr_query_version_reply_t> version(xcb_randr_query_version_reply(
        connection, xcb_randr_query_version(connection, 1, 5), nullptr));
    return version && (version->major_version > 1 || version->minor_version >= 5);
}

std::string nameOfAtom(xcb_connection_t* connection, xcb_atom_t atom) {
    const XcbOwned<xcb_get_atom_name_reply_t> reply(
        xcb_get_atom_name_reply(connection, xcb_get_atom_name(connection, atom), nullptr));
    if (!reply) {
        return {};
    }
    return {xcb_get_atom_name_name(reply.get()),
            static_cast<std::size_t>(xcb_get_atom_name_name_length(reply.get()))};
}

std::vector<Monitor> wholeRoot(xcb_connection_t* connection, xcb_window_t root) {
    const auto frame = rootFrame(connection, root);
    return frame ? std::vector<Monitor>{{wholeRootNumber, {}, *frame}} : std::vector<Monitor>{};
}

} // namespace

std::optional<xcb_rectangle_t> rootFrame(xcb_connection_t* connection, xcb_window_t root) {
    const XcbOwned<xcb_get_geometry_reply_t> reply(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, root), nullptr));
    if (!reply) {
        return std::nullopt;
    }
    return xcb_rectangle_t{0, 0, reply->width, reply->height};
}

std::vector<Monitor> activeMonitors(xcb_connection_t* connection, xcb_window_t root) {
    if (!hasMonitors(connection)) {
        return wholeRoot(connection, root);
    }
    const XcbOwned<xcb_randr_get_monitors_reply_t> reply(xcb_randr_get_monitors_reply(
        connection, xcb_randr_get_monitors(connection, root, 1), nullptr));
    if (!reply) {
        return {};
    }
    std::vector<Monitor> monitors;
    for (auto at = xcb_randr_get_monitors_monitors_iterator(reply.get()); at.rem > 0;
         xcb_randr_monitor_info_next(&at)) {
        const xcb_randr_monitor_info_t& info = *at.data;
        const auto place = info.primary ? monitors.begin() : monitors.end();
        monitors.insert(place, {info.name,
                                nameOfAtom(connection, info.name),
                                {info.x, info.y, info.width, info.height}});
    }
    return monitors;
}

void watchMonitors(xcb_connection_t* connection, xcb_window_t root) {
    if (hasMonitors(connection)) {
        xcb_randr_select_input(connection, root,
                               XCB_RANDR_NOTIFY_MASK_SCREEN_CHANGE |
                                   XCB_RANDR_NOTIFY_MASK_CRTC_CHANGE |
                                   XCB_RANDR_NOTIFY_MASK_OUTPUT_CHANGE);
    }
}

bool tellsOfMonitors(xcb_connection_t* connection, const xcb_generic_event_t& event) {
    const auto* extension = xcb_get_extension_data(connection, &xcb_randr_id);
    return extension->present && eventType(event) >= extension->first_event &&
           eventType(event) <= extension->first_event + XCB_RANDR_NOTIFY;
}

std::optional<std::uint32_t> MonitorNumbers::numberOf(const std::string& name) {
    const auto known = m_known.find(name);
    if (known != m_known.end()) {
        return known->second;
    }
    const bool onlyIfExists = true;
    const auto request = xcb_intern_atom(m_connection, onlyIfExists,
                                         static_cast<std::uint16_t>(name.size()), name.data());
    const XcbOwned<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(m_connection, request, nullptr));
    if (!reply || reply->atom == noAtom) {
        return std::nullopt;
    }
    return m_known[name] = reply->atom;
}

} // namespace quillon::desktop
