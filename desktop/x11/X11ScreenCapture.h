#pragma once

#include "desktop/x11/CaptureSession.h"
#include "platform/ScreenCapture.h"

#include <functional>

namespace quillon::desktop {

/// Live pictures of the monitors of an X server. Every client of a server may look at its screen,
/// so nothing is ever refused and there is nobody to ask.
///
/// The number of a display is that of its monitor. Each lookup and each stream has a connection of
/// its own, and none is held in between.
class X11ScreenCapture : public ScreenCapture {
public:
    /// Device pixels to a point, of the primary display.
    using PointScale = std::function<CGFloat()>;

    X11ScreenCapture(CaptureSurroundings surroundings, PointScale pointScale);

    void getShareableContentExcludingDesktopWindows(WindowsToList windows,
                                                    ContentCompletion completion) override;
    void getShareableContent(ContentCompletion completion) override;
    std::shared_ptr<SCStream> makeStream(const SCContentFilter& filter,
                                         const SCStreamConfiguration& configuration,
                                         std::shared_ptr<SCStreamDelegate> delegate) override;
    SCContentSharingPicker& sharedPicker() override { return m_picker; }
    ActiveDisplayList getActiveDisplayList(int maxDisplays) override;
    CGRect displayBounds(CGDirectDisplayID display) override;

private:
    /// There is no such dialog: nothing comes up.
    class NoPicker : public SCContentSharingPicker {
    public:
        void setActive(bool /*isActive*/) override {}
    };

    /// The primary one first; nothing when the server does not answer.
    std::vector<Monitor> monitors() const;
    ContentOutcome content() const;
    /// In points, from the top left corner of the primary display.
    CGRect boundsOf(const Monitor& monitor, const Monitor& primary) const;

    CaptureSurroundings m_surroundings;
    PointScale m_pointScale;
    NoPicker m_picker;
};

} // namespace quillon::desktop
