#include "desktop/x11/PointerWindow.h"

#include "desktop/x11/XcbHandles.h"

#include <xcb/shape.h>
#include <xcb/xinput.h>

#include <optional>
#include <utility>

namespace quillon::desktop {

namespace {

/// As large as a window can be; the parent cuts off what lies beyond it.
constexpr std::uint16_t kLargest = 32767;
constexpr std::uint32_t kPrimaryBit = 1U << 1U;

bool selectPointer(xcb_connection_t* connection, xcb_window_t window) {
    struct {
        xcb_input_event_mask_t head{XCB_INPUT_DEVICE_ALL_MASTER, 1};
        std::uint32_t events = XCB_INPUT_XI_EVENT_MASK_BUTTON_PRESS |
                               XCB_INPUT_XI_EVENT_MASK_BUTTON_RELEASE |
                               XCB_INPUT_XI_EVENT_MASK_MOTION | XCB_INPUT_XI_EVENT_MASK_ENTER;
    } const mask;
    return !requestError(connection,
                         xcb_input_xi_select_events_checked(connection, window, 1, &mask.head));
}

double fromFixed(xcb_input_fp1616_t value) {
    return static_cast<double>(value) / 65536;
}

std::optional<WindowPointerEvent::Kind> kindOf(std::uint16_t eventType) {
    switch (eventType) {
    case XCB_INPUT_ENTER:
        return WindowPointerEvent::Kind::enter;
    case XCB_INPUT_MOTION:
        return WindowPointerEvent::Kind::motion;
    case XCB_INPUT_BUTTON_PRESS:
        return WindowPointerEvent::Kind::press;
    case XCB_INPUT_BUTTON_RELEASE:
        return WindowPointerEvent::Kind::release;
    default:
        return std::nullopt;
    }
}

} // namespace

std::unique_ptr<PointerWindow> PointerWindow::over(xcb_window_t parent,
                                                   const std::string& display) {
    XcbConnection connection = connectTo(display);
    if (!connection) {
        return nullptr;
    }
    const auto* extension = xcb_get_extension_data(connection.get(), &xcb_input_id);
    if (!extension || !extension->present) {
        return nullptr;
    }
    const XcbOwned<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
        connection.get(), xcb_input_xi_query_version(connection.get(), 2, 2), nullptr));
    const xcb_window_t window = xcb_generate_id(connection.get());
    xcb_create_window(connection.get(), XCB_COPY_FROM_PARENT, window, parent, 0, 0, kLargest,
                      kLargest, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    if (!version || version->major_version < 2 || !selectPointer(connection.get(), window)) {
        return nullptr;
    }
    const std::uint8_t opcode = extension->major_opcode;
    return std::unique_ptr<PointerWindow>(new PointerWindow(std::move(connection), opcode, window));
}

PointerWindow::PointerWindow(XcbConnection connection, std::uint8_t extension, xcb_window_t window)
    : m_connection(std::move(connection))
    , m_extension(extension)
    , m_window(window) {}

void PointerWindow::cover(std::span<const xcb_rectangle_t> rectangles) {
    xcb_shape_rectangles(m_connection.get(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING,
                         XCB_CLIP_ORDERING_UNSORTED, m_window, 0, 0,
                         static_cast<std::uint32_t>(rectangles.size()), rectangles.data());
    xcb_map_window(m_connection.get(), m_window);
    xcb_flush(m_connection.get());
}

void PointerWindow::dispatch(const std::function<void(const WindowPointerEvent&)>& handler) {
    while (const XcbOwned<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())}) {
        if (eventType(*event) != XCB_GE_GENERIC ||
            eventAs<xcb_ge_generic_event_t>(*event).extension != m_extension) {
            continue;
        }
        // All four have their common fields at the same place.
        const auto& pointer = eventAs<xcb_input_button_press_event_t>(*event);
        const auto kind = kindOf(pointer.event_type);
        if (!kind) {
            continue;
        }
        WindowPointerEvent told{*kind, fromFixed(pointer.event_x), fromFixed(pointer.event_y)};
        if (*kind != WindowPointerEvent::Kind::enter) {
            told.button = pointer.detail;
            told.isPrimaryHeld = pointer.buttons_len > 0 &&
                                 (*xcb_input_button_press_button_mask(&pointer) & kPrimaryBit) != 0;
        }
        handler(told);
    }
}

} // namespace quillon::desktop
