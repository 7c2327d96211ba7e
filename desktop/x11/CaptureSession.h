#pragma once

#include "desktop/x11/FileWatch.h"
#include "desktop/x11/FramePacer.h"
#include "desktop/x11/Monitors.h"
#include "desktop/x11/RootPixels.h"
#include "desktop/x11/ScreenDamage.h"
#include "desktop/x11/XcbConnection.h"
#include "platform/ScreenCapture.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <variant>

namespace quillon::desktop {

/// What a capture needs of the program around it.
struct CaptureSurroundings {
    /// Of the X server, such as ":0".
    std::string displayName;
    std::reference_wrapper<MainQueue> mainQueue;
    FileWatch watch;
    /// Whether all that stands in a rectangle of the root window, in device pixels, has been drawn
    /// by this program.
    std::function<bool(const xcb_rectangle_t&)> isOwnPicture;
};

/// A running capture of one display, over a connection of its own, which nothing of it outlives.
///
/// The way of a frame:
/// 1. something is drawn, and the server tells of the damage;
/// 2. a frame is booked for when the pacer lets it come. Where the receiver shows a frame, that
///    itself is a change of the screen: its own picture is in no haste, and leaves the next slot to
///    the next change that somebody else makes. Such a change brings a frame forward;
/// 3. when it is due the damage is forgotten, so that the next change is told, and the frame is
///    handed over. No pixel has been read so far;
/// 4. its receiver cuts out what it shows, and these pixels alone are read.
/// While nothing is drawn nothing is booked: a receiver that draws nothing for a frame in which it
/// finds nothing new is at rest one frame after the screen. A server that cannot tell of damage is
/// asked for a frame at every turn of a slower pace.
///
/// The end: when the display is not among the monitors any more, or the server does not answer, the
/// end is told once, in a turn of its own.
class CaptureSession : public std::enable_shared_from_this<CaptureSession> {
public:
    using FrameHandler = std::function<void(std::shared_ptr<const CVImageBuffer>)>;
    using EndHandler = std::function<void(const CaptureError&)>;
    using Opened = std::variant<std::shared_ptr<CaptureSession>, CaptureError>;

    /// Connects. The first frame comes in a later turn. `minimumFrameInterval` is in seconds.
    static Opened open(const CaptureSurroundings& surroundings, CGDirectDisplayID display,
                       double minimumFrameInterval, FrameHandler frame, EndHandler end);

    CaptureSession(const CaptureSession&) = delete;
    CaptureSession& operator=(const CaptureSession&) = delete;

    /// The pixels of a rectangle of the root window, in device pixels, y downward.
    std::shared_ptr<const PixelRows> read(const xcb_rectangle_t& rect);

private:
    CaptureSession(const CaptureSurroundings& surroundings, XcbConnection connection,
                   const PixelLayout& layout, double minimumFrameInterval);

    bool findDisplay(CGDirectDisplayID display);
    void begin(const FileWatch& watch);
    void later(double seconds, std::function<void(CaptureSession&)> step);

    void handleEvents();
    void bookFrame(FrameHaste haste = FrameHaste::now);
    void deliverBooked(std::uint64_t booking);
    void deliverFrame();
    bool takeDamage();
    void checkDisplay();
    /// The first reason counts.
    void endBecause(CaptureError reason);
    void end();

    std::reference_wrapper<MainQueue> m_mainQueue;
    std::string m_displayName;
    std::function<bool(const xcb_rectangle_t&)> m_isOwnPicture;
    XcbConnection m_connection;
    xcb_window_t m_root;
    RootPixels m_pixels;
    /// Missing where the server cannot tell of damage.
    std::optional<ScreenDamage> m_damage;
    FramePacer m_pacer;
    Monitor m_display;
    bool m_isWholeRoot = false;
    FrameHandler m_frame;
    EndHandler m_end;
    std::optional<CaptureError> m_reasonToEnd;
    /// A frame is to come whatever has changed on the screen.
    bool m_isFrameOwed = true;
    /// When a frame comes; empty when none is booked.
    std::optional<double> m_due;
    /// Of the last booking. An earlier one that was brought forward has no effect.
    std::uint64_t m_booking = 0;
    bool m_isCheckBooked = false;
    Cancellable m_watch;
};

} // namespace quillon::desktop
