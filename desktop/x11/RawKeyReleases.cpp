#include "desktop/x11/RawKeyReleases.h"

#include "desktop/x11/PointerMotion.h"
#include "desktop/x11/XcbHandles.h"

namespace quillon::desktop {

namespace {

constexpr std::uint32_t kNone = 0;

/// Only who names a version hears what happens while the keyboard is grabbed. A toolkit may have
/// named a later one on this connection, which then stands.
std::uint8_t extensionForEverybody(xcb_connection_t* connection) {
    const std::uint8_t extension = inputExtension(connection);
    if (extension != 0) {
        const auto version = xcb_input_xi_query_version(connection, 2, 2);
        xcb_discard_reply(connection, version.sequence);
    }
    return extension;
}

} // namespace

RawKeyReleases::RawKeyReleases(xcb_connection_t* connection, xcb_window_t root)
    : m_connection(connection)
    , m_root(root)
    , m_extension(extensionForEverybody(connection)) {}

RawKeyReleases::~RawKeyReleases() {
    if (!m_awaited.empty()) {
        select(kNone);
    }
}

void RawKeyReleases::await(xcb_keycode_t keyCode) {
    if (m_extension == 0) {
        return;
    }
    if (m_awaited.empty()) {
        select(XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE);
    }
    m_awaited.insert(keyCode);
}

std::optional<RawKeyReleases::Release> RawKeyReleases::take(const xcb_generic_event_t& event) {
    if (m_extension == 0 || eventType(event) != XCB_GE_GENERIC ||
        eventAs<xcb_ge_generic_event_t>(event).extension != m_extension ||
        eventAs<xcb_ge_generic_event_t>(event).event_type != XCB_INPUT_RAW_KEY_RELEASE) {
        return std::nullopt;
    }
    const auto& raw = eventAs<xcb_input_raw_key_release_event_t>(event);
    const Release release{static_cast<xcb_keycode_t>(raw.detail), raw.time};
    if (m_awaited.erase(release.keyCode) > 0 && m_awaited.empty()) {
        select(kNone);
    }
    return release;
}

void RawKeyReleases::select(std::uint32_t events) {
    struct {
        xcb_input_event_mask_t head{XCB_INPUT_DEVICE_ALL_MASTER, 1};
        std::uint32_t events;
    } const mask{.events = events};
    const auto cookie = xcb_input_xi_select_events_checked(m_connection, m_root, 1, &mask.head);
    xcb_discard_reply(m_connection, cookie.sequence);
    xcb_flush(m_connection);
}

} // namespace quillon::desktop
