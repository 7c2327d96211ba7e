#include "desktop/x11/RawPointerEvents.h"

#include "desktop/x11/XcbHandles.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace quillon::desktop {

namespace {

constexpr std::uint16_t kButtonBits = XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3 |
                                      XCB_BUTTON_MASK_4 | XCB_BUTTON_MASK_5;
/// Buttons 4 to 7 are the turns of wheels.
constexpr std::uint8_t kFirstWheelButton = 4;
constexpr std::uint8_t kLastWheelButton = 7;
/// The first two valuators of a pointer are its place; others are wheels, pressure and tilt.
constexpr std::uint32_t kPlaceValuators = 0x3;

/// The number of the extension, if the server has it in a version with raw events for everybody,
/// also while another client holds the pointer.
std::optional<std::uint8_t> inputExtension(xcb_connection_t* connection) {
    const xcb_query_extension_reply_t* extension =
        xcb_get_extension_data(connection, &xcb_input_id);
    if (!extension || !extension->present) {
        return std::nullopt;
    }
    const XcbOwned<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
        connection, xcb_input_xi_query_version(connection, 2, 2), nullptr));
    const bool isEnough = version && (version->major_version > 2 ||
                                      (version->major_version == 2 && version->minor_version >= 1));
    return isEnough ? std::optional(extension->major_opcode) : std::nullopt;
}

bool selectRawEvents(xcb_connection_t* connection, xcb_window_t root) {
    struct {
        xcb_input_event_mask_t head{XCB_INPUT_DEVICE_ALL_MASTER, 1};
        std::uint32_t events = XCB_INPUT_XI_EVENT_MASK_RAW_MOTION |
                               XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS |
                               XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE;
    } const mask;
    return !requestError(connection,
                         xcb_input_xi_select_events_checked(connection, root, 1, &mask.head));
}

/// False for a device's wheel or pen pressure, which comes as a motion too.
bool changesPlace(const xcb_input_raw_button_press_event_t& motion) {
    return motion.valuators_len > 0 &&
           (*xcb_input_raw_button_press_valuator_mask(&motion) & kPlaceValuators) != 0;
}

} // namespace

ClientIds::ClientIds(xcb_connection_t* connection)
    : m_base(xcb_get_setup(connection)->resource_id_base)
    , m_mask(xcb_get_setup(connection)->resource_id_mask) {}

std::unique_ptr<RawPointerEvents> RawPointerEvents::listen(const std::string& display) {
    XcbConnection connection = connectTo(display);
    if (!connection) {
        return nullptr;
    }
    const auto extension = inputExtension(connection.get());
    if (!extension || !selectRawEvents(connection.get(), rootWindow(connection.get()))) {
        return nullptr;
    }
    return std::unique_ptr<RawPointerEvents>(
        new RawPointerEvents(std::move(connection), *extension));
}

RawPointerEvents::RawPointerEvents(XcbConnection connection, std::uint8_t extension)
    : m_connection(std::move(connection))
    , m_extension(extension) {}

void RawPointerEvents::take(std::vector<RawPointerEvent>& events) {
    while (const XcbOwned<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())}) {
        note(*event, events);
    }
}

void RawPointerEvents::note(const xcb_generic_event_t& event,
                            std::vector<RawPointerEvent>& events) {
    if (eventType(event) != XCB_GE_GENERIC ||
        eventAs<xcb_ge_generic_event_t>(event).extension != m_extension) {
        return;
    }
    // All three have one layout.
    const auto& raw = eventAs<xcb_input_raw_button_press_event_t>(event);
    switch (raw.event_type) {
    case XCB_INPUT_RAW_MOTION:
        if (changesPlace(raw)) {
            noteMotion(events);
        }
        break;
    case XCB_INPUT_RAW_BUTTON_PRESS:
        notePress({raw.sourceid, raw.detail}, events);
        break;
    case XCB_INPUT_RAW_BUTTON_RELEASE:
        m_heldButtons.erase({raw.sourceid, raw.detail});
        break;
    default:
        break;
    }
}

void RawPointerEvents::noteMotion(std::vector<RawPointerEvent>& events) const {
    using Kind = RawPointerEvent::Kind;
    const RawPointerEvent motion{m_heldButtons.empty() ? Kind::motion : Kind::drag};
    if (events.empty() || events.back() != motion) {
        events.push_back(motion);
    }
}

void RawPointerEvents::notePress(const Button& button, std::vector<RawPointerEvent>& events) {
    const std::uint8_t mapped = mappedButton(button.number);
    const bool isWheel = mapped >= kFirstWheelButton && mapped <= kLastWheelButton;
    if (mapped == 0 || isWheel) {
        return;
    }
    if (mapped < kFirstWheelButton) {
        m_heldButtons.insert(button);
    }
    events.push_back({RawPointerEvent::Kind::press, mapped});
}

std::uint8_t RawPointerEvents::mappedButton(std::uint32_t physicalButton) const {
    const XcbOwned<xcb_get_pointer_mapping_reply_t> mapping(xcb_get_pointer_mapping_reply(
        m_connection.get(), xcb_get_pointer_mapping(m_connection.get()), nullptr));
    if (!mapping || physicalButton < 1 || physicalButton > mapping->map_len) {
        return static_cast<std::uint8_t>(physicalButton);
    }
    return xcb_get_pointer_mapping_map(mapping.get())[physicalButton - 1];
}

PointerState RawPointerEvents::pointer() {
    xcb_connection_t* connection = m_connection.get();
    // The way down is mostly that of the last time: all its steps are asked for at once, and the
    // time of a single answer goes by.
    std::vector<xcb_query_pointer_cookie_t> asked;
    for (const xcb_window_t window : m_wayDown) {
        asked.push_back(xcb_query_pointer(connection, window));
    }
    PointerState state;
    std::vector<xcb_window_t> wayDown;
    for (xcb_window_t window = rootWindow(connection); window != noWindow;) {
        const std::size_t step = wayDown.size();
        if (step < asked.size() && window != m_wayDown[step]) {
            discard(asked, step);
        }
        const auto cookie =
            step < asked.size() ? asked[step] : xcb_query_pointer(connection, window);
        // A window may go at any time; then there is nothing further down.
        const XcbOwned<xcb_query_pointer_reply_t> reply(
            xcb_query_pointer_reply(connection, cookie, nullptr));
        if (step == 0 && reply) {
            state = {reply->root_x, reply->root_y, (reply->mask & kButtonBits) != 0, noWindow};
        } else if (step > 0) {
            state.window = window;
        }
        wayDown.push_back(window);
        window = reply ? reply->child : noWindow;
    }
    discard(asked, wayDown.size());
    m_wayDown = std::move(wayDown);
    return state;
}

bool RawPointerEvents::wasOver(const ClientIds& client) const {
    return std::ranges::any_of(m_wayDown,
                               [&](xcb_window_t window) { return client.contains(window); });
}

void RawPointerEvents::discard(std::vector<xcb_query_pointer_cookie_t>& asked,
                               std::size_t from) const {
    for (; asked.size() > from; asked.pop_back()) {
        xcb_discard_reply(m_connection.get(), asked.back().sequence);
    }
}

} // namespace quillon::desktop
