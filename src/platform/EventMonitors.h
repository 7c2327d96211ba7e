#pragma once

#include "foundation/Geometry.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace quillon {

/// What a pointer event tells; its value is the number of its bit in a mask.
enum class NSEventType : std::uint32_t {
    leftMouseDown = 1,
    rightMouseDown = 3,
    mouseMoved = 5,
    otherMouseDown = 25,
};

/// Bits of a mask of event types.
namespace NSEventMask {
inline constexpr std::uint64_t leftMouseDown = 0x2;
inline constexpr std::uint64_t rightMouseDown = 0x8;
inline constexpr std::uint64_t mouseMoved = 0x20;
inline constexpr std::uint64_t otherMouseDown = 0x2000000;
} // namespace NSEventMask

struct NSEvent {
    NSEventType type = NSEventType::mouseMoved;

    std::uint64_t mask() const { return std::uint64_t{1} << static_cast<std::uint32_t>(type); }

    friend bool operator==(const NSEvent&, const NSEvent&) = default;
};

/// An added monitor, named by the host.
enum class EventMonitorToken : std::uint64_t {};

/// Watches the pointer. A motion with a button held is a drag: no type here stands for it, and it
/// is not reported. Handlers are called on the main thread, in the order of the events, and may
/// add and remove monitors. While no monitor is there, nothing is asked of the server.
class EventMonitors {
public:
    using GlobalHandler = std::function<void(const NSEvent&)>;
    /// Answers the event, for it to go on its way.
    using LocalHandler = std::function<NSEvent(const NSEvent&)>;

    virtual ~EventMonitors() = default;

    /// Reports the events of the mask that go to other programs. When several motions are waiting,
    /// only the last one is reported. Nothing when the desktop offers no such watch.
    virtual std::optional<EventMonitorToken>
    addGlobalMonitorForEventsMatchingMask(std::uint64_t mask, GlobalHandler handler) = 0;
    /// Reports the events of the mask that go to the program's own windows.
    virtual std::optional<EventMonitorToken>
    addLocalMonitorForEventsMatchingMask(std::uint64_t mask, LocalHandler handler) = 0;
    virtual void removeMonitor(EventMonitorToken token) = 0;

    /// Where the pointer stands now, in global coordinates, in points.
    virtual CGPoint mouseLocation() const = 0;
};

} // namespace quillon
