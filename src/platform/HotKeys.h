#pragma once

#include <cstdint>
#include <optional>

namespace quillon {

/// A status code of the hot-key system; zero is success.
using OSStatus = std::int32_t;

inline constexpr OSStatus noErr = 0;
inline constexpr OSStatus paramErr = -50;
inline constexpr OSStatus eventNotHandledErr = -9874;
/// The combination is taken, by this program or by another.
inline constexpr OSStatus eventHotKeyExistsErr = -9878;

/// Bits of a modifier mask.
inline constexpr std::uint32_t cmdKey = 0x100;
inline constexpr std::uint32_t shiftKey = 0x200;
inline constexpr std::uint32_t optionKey = 0x800;
inline constexpr std::uint32_t controlKey = 0x1000;

inline constexpr std::uint32_t kEventClassKeyboard = 0x6B657962; // "keyb"
inline constexpr std::uint32_t kEventHotKeyPressed = 5;

struct EventTypeSpec {
    std::uint32_t eventClass = 0;
    std::uint32_t eventKind = 0;

    friend bool operator==(const EventTypeSpec&, const EventTypeSpec&) = default;
};

struct EventHotKeyID {
    std::uint32_t signature = 0;
    std::uint32_t id = 0;

    friend bool operator==(const EventHotKeyID&, const EventHotKeyID&) = default;
};

/// A registration, named by the host.
enum class EventHotKeyRef : std::uint64_t {};
/// An installed handler, named by the host.
enum class EventHandlerRef : std::uint64_t {};
/// Where hot-key events go.
enum class EventTarget { application };

/// An event on its way to a handler; only the host looks inside.
class HotKeyEvent {
public:
    virtual ~HotKeyEvent() = default;
};

/// System-wide hot keys: combinations that reach this program whichever program has the keyboard.
///
/// A key is a virtual key code, the physical place of a key on the ANSI layout. A combination
/// matches when exactly its modifiers are held; the lock keys play no part. A held key is one
/// press. Handlers are called on the main thread.
class HotKeys {
public:
    /// Answers a status; `event` and `userData` may be null.
    using EventHandler = OSStatus (*)(const HotKeyEvent* event, void* userData);

    struct Registration {
        OSStatus status = paramErr;
        std::optional<EventHotKeyRef> ref;
    };
    struct Installation {
        OSStatus status = paramErr;
        std::optional<EventHandlerRef> ref;
    };

    virtual ~HotKeys() = default;

    virtual EventTarget getApplicationEventTarget() const = 0;

    /// `eventHotKeyExistsErr` when the combination is taken, `paramErr` when this keyboard has no
    /// such key.
    virtual Registration registerEventHotKey(std::uint32_t keyCode, std::uint32_t modifiers,
                                             EventHotKeyID hotKeyID, EventTarget target,
                                             std::uint32_t options) = 0;
    virtual void unregisterEventHotKey(EventHotKeyRef ref) = 0;

    virtual Installation installEventHandler(EventTarget target, EventHandler handler,
                                             EventTypeSpec type, void* userData) = 0;
    virtual void removeEventHandler(EventHandlerRef ref) = 0;

    /// The id of the hot key that was pressed, or nothing when the event carries none.
    virtual std::optional<EventHotKeyID> getEventParameter(const HotKeyEvent& event) const = 0;
};

} // namespace quillon
