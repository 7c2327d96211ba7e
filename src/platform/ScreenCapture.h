#pragma once

#include "foundation/Geometry.h"
#include "platform/SCStream.h"
#include "platform/SCStreamConfiguration.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <variant>
#include <vector>

namespace quillon {

/// A display's number, the same for as long as the display is connected.
using CGDirectDisplayID = std::uint32_t;
/// A window's number in the window system.
using CGWindowID = std::uint32_t;

/// A status code of the display list; zero is success.
using CGError = std::int32_t;
inline constexpr CGError kCGErrorSuccess = 0;
inline constexpr CGError kCGErrorCannotComplete = 1004;

/// A display that can be captured, with its size in points.
struct SCDisplay {
    CGDirectDisplayID displayID = 0;
    int width = 0;
    int height = 0;

    friend bool operator==(const SCDisplay&, const SCDisplay&) = default;
};

/// What could be captured when it was asked for; the primary display comes first.
struct SCShareableContent {
    std::vector<SCDisplay> displays;
};

/// What of it a stream shows: one display without some windows.
struct SCContentFilter {
    SCDisplay display;
    std::vector<CGWindowID> excludedWindows;
};

/// Which windows shareable content lists beside its displays.
struct WindowsToList {
    bool excludingDesktopWindows = false;
    bool onScreenWindowsOnly = false;
};

/// The desktop's own dialog in which a person allows a capture.
class SCContentSharingPicker {
public:
    virtual ~SCContentSharingPicker() = default;

    virtual void setActive(bool isActive) = 0;
};

/// Live pictures of displays.
///
/// A session that forbids capturing, such as one that asks a person first, answers the lookups or
/// the start of a stream with an error of the domain "SCStreamErrorDomain".
class ScreenCapture {
public:
    using ContentOutcome = std::variant<SCShareableContent, CaptureError>;
    using ContentCompletion = std::function<void(const ContentOutcome&)>;

    struct ActiveDisplayList {
        CGError error = kCGErrorSuccess;
        std::vector<CGDirectDisplayID> displays;
    };

    virtual ~ScreenCapture() = default;

    /// Tells by its success whether capturing is allowed. Completes on the main thread in a later
    /// turn.
    virtual void getShareableContentExcludingDesktopWindows(WindowsToList windows,
                                                            ContentCompletion completion) = 0;
    /// The current content. Completes on the main thread in a later turn.
    virtual void getShareableContent(ContentCompletion completion) = 0;

    /// A stream that has yet to be started; never null.
    virtual std::shared_ptr<SCStream> makeStream(const SCContentFilter& filter,
                                                 const SCStreamConfiguration& configuration,
                                                 std::shared_ptr<SCStreamDelegate> delegate) = 0;

    virtual SCContentSharingPicker& sharedPicker() = 0;

    /// `CGGetActiveDisplayList`: the primary display comes first.
    virtual ActiveDisplayList getActiveDisplayList(int maxDisplays) = 0;
    /// `CGDisplayBounds`, in points from the top left corner of the primary display, y downward;
    /// an empty rectangle for a display that is not there.
    virtual CGRect displayBounds(CGDirectDisplayID display) = 0;
};

} // namespace quillon
