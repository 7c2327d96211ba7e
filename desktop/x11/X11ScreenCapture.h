#pragma once

#include "platform/ScreenCapture.h"

namespace quillon::desktop {

/// Captures nothing yet: every lookup and every start is answered with an error.
class X11ScreenCapture : public ScreenCapture, private SCContentSharingPicker {
public:
    /// The queue must outlive this.
    explicit X11ScreenCapture(MainQueue& mainQueue);

    void getShareableContentExcludingDesktopWindows(WindowsToList windows,
                                                    ContentCompletion completion) override;
    void getShareableContent(ContentCompletion completion) override;
    std::shared_ptr<SCStream> makeStream(const SCContentFilter& filter,
                                         const SCStreamConfiguration& configuration,
                                         std::shared_ptr<SCStreamDelegate> delegate) override;
    SCContentSharingPicker& sharedPicker() override { return *this; }
    ActiveDisplayList getActiveDisplayList(int maxDisplays) override;
    CGRect displayBounds(CGDirectDisplayID display) override;

private:
    /// There is no dialog: a client of an X server may read the screen.
    void setActive(bool isActive) override;

    MainQueue& m_mainQueue;
};

} // namespace quillon::desktop
